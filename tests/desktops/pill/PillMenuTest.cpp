// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

constexpr int enter = 28;
constexpr int escape = 1;
constexpr int upArrow = 103;
constexpr int downArrow = 108;

/// The menu's background is nearly black; a highlighted entry is lighter.
bool isBackground(const QColor& colour) {
    return colour.value() > 20 && colour.value() < 40;
}

bool isHighlight(const QColor& colour) {
    return colour.value() > 50 && colour.value() < 90;
}

class PillMenu : public PillOnCompositor {
protected:
    using PillOnCompositor::PillOnCompositor;

    /// A point of an entry beside its text.
    QPointF besideTextOf(const char* entry) {
        const QRectF rectangle = program->menuEntry(entry);
        return program->menuPlace().topLeft() + rectangle.center() +
               QPointF(rectangle.width() / 2 - 10, 0);
    }

    bool isHighlighted(const Picture& picture, const char* entry) {
        return isHighlight(picture.at(besideTextOf(entry)));
    }

    /// All of it, just inside the edges.
    bool showsMenu(const Picture& picture, QRectF menu) {
        const QRectF inside = menu.adjusted(3, 3, -4, -4);
        const QPointF middle = inside.center();
        for (const QPointF edge :
             {QPointF(inside.left(), middle.y()), QPointF(inside.right(), middle.y()),
              QPointF(middle.x(), inside.top()), QPointF(middle.x(), inside.bottom())})
            if (!isBackground(picture.at(edge)))
                return false;
        return true;
    }
};

TEST_F(PillMenu, OpensWhereThePointerIs) {
    below();
    startSinging();
    const QPointF at = middleOf("lyricLine").toPoint();
    openMenuAt(at);
    const QRectF menu = program->menuPlace();
    EXPECT_LE(std::abs(menu.left() - at.x()), 1);
    EXPECT_LE(std::abs(menu.top() - at.y()), 1);
    EXPECT_FALSE(program->is("isMinimized")) << "a secondary press is no tap";
    EXPECT_TRUE(shows("menu", [&](const Picture& picture) {
        return showsMenu(picture, menu) && picture.at(menu.bottomRight()) == colourBelow();
    }));
}

TEST_F(PillMenu, HighlightsTheEntryThatIsPointedAt) {
    below();
    startSinging();
    openMenu();
    for (const char* entry : {"Quit Brellowind", "Open Settings"}) {
        compositor->movePointerTo(middleOfEntry(entry));
        EXPECT_TRUE(shows("menu-hovered", [&](const Picture& picture) {
            return isHighlighted(picture, entry) && !isHighlighted(picture, "Check for Updates…");
        })) << entry;
    }
    EXPECT_TRUE(program->hasMenu());
}

TEST_F(PillMenu, ClosesOnAPressElsewhere) {
    below();
    startSinging();
    openMenu();
    compositor->click({100, 600});
    EXPECT_TRUE(menuCloses());
    EXPECT_TRUE(program->process().isRunning());
    openMenu();
    EXPECT_TRUE(program->hasMenu()) << "it opens again";
}

TEST_F(PillMenu, ClosesOnTheEscapeKey) {
    below();
    startSinging();
    openMenu();
    compositor->type(escape);
    EXPECT_TRUE(menuCloses());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, ClosesWhenAnEntryIsChosen) {
    below();
    startSinging();
    choose("Open Settings");
    EXPECT_TRUE(menuCloses());
    EXPECT_TRUE(program->process().isRunning());
}

TEST_F(PillMenu, QuitEndsTheProgramWithoutAFault) {
    startSinging();
    choose("Quit Brellowind");
    EXPECT_EQ(program->process().finish(), 0);
    EXPECT_EQ(program->errors(), QStringList());
}

TEST_F(PillMenu, TakesArrowKeysAndEnter) {
    below();
    startSinging();
    openMenu();
    compositor->type(downArrow);
    EXPECT_TRUE(shows("menu-first", [&](const Picture& picture) {
        return isHighlighted(picture, "Open Settings");
    }));
    compositor->type(downArrow);
    compositor->type(downArrow);
    EXPECT_TRUE(shows("menu-last", [&](const Picture& picture) {
        return isHighlighted(picture, "Quit Brellowind");
    }));
    compositor->type(upArrow);
    EXPECT_TRUE(shows("menu-middle", [&](const Picture& picture) {
        return isHighlighted(picture, "Check for Updates…");
    }));
    compositor->type(downArrow);
    compositor->type(enter);
    EXPECT_EQ(program->process().finish(), 0);
}

class PillMenuOnANarrowScreen : public PillMenu {
protected:
    PillMenuOnANarrowScreen() : PillMenu({.size = {400, 600}}) {}
};

TEST_F(PillMenuOnANarrowScreen, StaysOnTheScreen) {
    below();
    startSinging();
    enterPill();
    const QRectF pill = place("pill");
    openMenuAt(pill.topRight() + QPointF(-20, 30));
    const QRectF menu = program->menuPlace();
    EXPECT_TRUE(QRectF(screen()).contains(menu)) << menu.x() << ", " << menu.y();
    EXPECT_TRUE(
        shows("menu-at-edge", [&](const Picture& picture) { return showsMenu(picture, menu); }));
    compositor->click(middleOfEntry("Quit Brellowind"));
    EXPECT_EQ(program->process().finish(), 0);
}

} // namespace
} // namespace brellowind::test
