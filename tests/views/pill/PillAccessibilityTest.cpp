// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

#include <QAccessible>
#include <functional>

namespace brellowind {
namespace {

class PillAccessibility : public test::Stage {
protected:
    PillAccessibility() { QAccessible::setActive(true); }

    /// The first accessible object that `matches`, searched from the window.
    static QAccessibleInterface* find(QAccessibleInterface* from,
                                      const std::function<bool(QAccessibleInterface*)>& matches) {
        if (!from || from->state().invisible)
            return nullptr;
        if (matches(from))
            return from;
        for (int i = 0; i < from->childCount(); ++i)
            if (auto* found = find(from->child(i), matches))
                return found;
        return nullptr;
    }

    QAccessibleInterface* named(const char* name, QAccessible::Role role) {
        return find(QAccessible::queryAccessibleInterface(&window), [&](auto* piece) {
            return piece->role() == role &&
                   piece->text(QAccessible::Name) == QString::fromUtf8(name);
        });
    }

    QAccessibleInterface* button(const char* name) { return named(name, QAccessible::Button); }

    void press(QAccessibleInterface* piece) {
        ASSERT_NE(piece, nullptr);
        auto* actions = piece->actionInterface();
        ASSERT_NE(actions, nullptr);
        ASSERT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
        actions->doAction(QAccessibleActionInterface::pressAction());
        settle();
    }
};

TEST_F(PillAccessibility, TellsTheCurrentLineOnce) {
    machine.spotify.position = 5;
    machine.appearAnswered(test::synced("[00:01.00]the line being sung"));
    const auto tellers = [this] {
        settle();
        int count = 0;
        find(QAccessible::queryAccessibleInterface(&window), [&](auto* piece) {
            count += piece->text(QAccessible::Name) == QStringLiteral("the line being sung");
            return false;
        });
        return count;
    };
    EXPECT_EQ(tellers(), 1);
    EXPECT_NE(named("the line being sung", QAccessible::StaticText), nullptr);
    machine.view.tapCover();
    EXPECT_EQ(tellers(), 1) << "in the panel";
}

TEST_F(PillAccessibility, LetsThePillBePressed) {
    machine.appear();
    settle();
    press(named("Loading lyrics…", QAccessible::StaticText));
    EXPECT_TRUE(form().isMinimized);
    press(named("Loading lyrics…", QAccessible::StaticText));
    EXPECT_FALSE(form().isMinimized);
    machine.view.tapCover();
    settle();
    press(named("Loading lyrics…", QAccessible::StaticText));
    EXPECT_FALSE(form().isArtExpanded);
    EXPECT_FALSE(form().isMinimized);
}

TEST_F(PillAccessibility, LetsTheIndicatorBePressedForWhatItDoes) {
    machine.appear();
    settle();
    press(button("Play"));
    EXPECT_EQ(machine.spotify.toggles(), 1U);
    EXPECT_EQ(button("Play"), nullptr);
    press(button("Pause"));
    EXPECT_EQ(machine.spotify.toggles(), 2U);
}

TEST_F(PillAccessibility, LetsTheCoverBePressedWhileItIsAThumbnail) {
    machine.appear();
    settle();
    press(button("Show artwork"));
    EXPECT_TRUE(form().isArtExpanded);
    EXPECT_EQ(button("Show artwork"), nullptr);
}

TEST_F(PillAccessibility, LetsTheGrabberBePressedForWhatItDoes) {
    machine.appear();
    machine.movePointer(test::View::overThePill);
    settle();
    press(button("Hide lyrics"));
    EXPECT_TRUE(form().isMinimized);
    press(button("Show lyrics"));
    EXPECT_FALSE(form().isMinimized);
    machine.view.tapCover();
    settle();
    press(button("Close artwork"));
    EXPECT_FALSE(form().isArtExpanded);
}

TEST_F(PillAccessibility, OffersNoGrabberThatIsNotThere) {
    machine.appear();
    settle();
    EXPECT_EQ(button("Hide lyrics"), nullptr);
}

TEST_F(PillAccessibility, TellsWhereEachPieceIs) {
    machine.appear();
    settle();
    auto* root = QAccessible::queryAccessibleInterface(&window);
    EXPECT_EQ(root->rect(), window.geometry());
    const QRectF corner = pill()->mapRectToScene({0, 0, 49, 33});
    EXPECT_EQ(button("Show artwork")->rect(),
              corner.toAlignedRect().translated(window.mapToGlobal(QPoint(0, 0))));
    const QPoint onThumbnail = window.mapToGlobal(middle(artwork()));
    EXPECT_EQ(root->childAt(onThumbnail.x(), onThumbnail.y()), button("Show artwork"));
    const QPoint onBackground = window.mapToGlobal(onWindow(pill(), {100, 8}));
    EXPECT_EQ(root->childAt(onBackground.x(), onBackground.y())->role(), QAccessible::StaticText);
    const QPoint beside = window.mapToGlobal(onWindow(pill(), {-20, 8}));
    EXPECT_EQ(root->childAt(beside.x(), beside.y()), nullptr);
}

TEST_F(PillAccessibility, IsATreeThatHoldsTogether) {
    machine.appear();
    settle();
    auto* root = QAccessible::queryAccessibleInterface(&window);
    EXPECT_EQ(root->role(), QAccessible::Window);
    ASSERT_EQ(root->childCount(), 3);
    for (int i = 0; i < root->childCount(); ++i) {
        auto* child = root->child(i);
        ASSERT_NE(child, nullptr);
        EXPECT_EQ(root->indexOfChild(child), i);
        EXPECT_EQ(child->parent(), root);
        EXPECT_EQ(child->window(), &window);
        EXPECT_EQ(child->childCount(), 0);
        EXPECT_FALSE(child->text(QAccessible::Name).isEmpty());
        EXPECT_NE(child->actionInterface(), nullptr);
    }
    EXPECT_EQ(root->child(root->childCount()), nullptr);
    EXPECT_EQ(root->child(-1), nullptr);
}

TEST_F(PillAccessibility, LetsTheMenuBeReadAndPressed) {
    machine.appear();
    click(middle(pill()), Qt::RightButton);
    ASSERT_TRUE(menu() && menu()->isVisible());
    auto* root = QAccessible::queryAccessibleInterface(menu());
    QStringList entries;
    find(root, [&](QAccessibleInterface* piece) {
        if (piece->role() == QAccessible::MenuItem)
            entries.push_back(piece->text(QAccessible::Name));
        return false;
    });
    EXPECT_EQ(entries,
              (QStringList{QStringLiteral("Open Settings"), QString::fromUtf8("Check for Updates…"),
                           QStringLiteral("Quit Brellowind")}));
    press(find(root, [](auto* piece) {
        return piece->text(QAccessible::Name) == QStringLiteral("Quit Brellowind");
    }));
    EXPECT_EQ(machine.machine.mainLoop.quits, 1);
    EXPECT_FALSE(menu()->isVisible());
}

} // namespace
} // namespace brellowind
