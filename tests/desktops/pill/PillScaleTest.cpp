// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

#include <cmath>

namespace brellowind::test {
namespace {

QRect inPixels(QRectF points, double scale) {
    return QRectF(points.topLeft() * scale, points.size() * scale).toAlignedRect();
}

class PillAtScale : public PillOnCompositor, public testing::WithParamInterface<double> {
protected:
    explicit PillAtScale(const CompositorOptions& options = {.scale = GetParam()})
        : PillOnCompositor(options) {}

    QByteArray name(const char* what) const {
        return what + QByteArray("-at-") + QByteArray::number(GetParam());
    }

    /// Whether text was drawn at the native resolution: scaling leaves blurred or doubled edges.
    bool isSharp(const Picture& picture, QRectF place) const {
        const QRect text = inPixels(place, GetParam());
        return picture.sharpestStep(text) > 180 && picture.repeatedColumns(text) < 0.2;
    }

    bool isSharp(const Picture& picture) { return isSharp(picture, place("lyricLine")); }

    /// The left parts of the menu's entries.
    QRectF textsOfMenu() {
        const QRectF menu = program->menuPlace();
        return menu.adjusted(15, 10, -menu.width() / 2, -10);
    }

    void expectSharpInPlace(const char* what) {
        EXPECT_TRUE(shows(name(what).constData(),
                          [&](const Picture& picture) {
                              return isInPlace(picture, GetParam()) && isSharp(picture);
                          }))
            << "step " << picture().sharpestStep(inPixels(place("lyricLine"), GetParam()))
            << ", repeated " << picture().repeatedColumns(inPixels(place("lyricLine"), GetParam()));
    }

    void expectPointerFindsIt() {
        enterPill();
        EXPECT_TRUE(shows(name("hovered").constData(),
                          [&](const Picture& picture) { return isSharp(picture); }));
        compositor->click(background());
        EXPECT_TRUE(program->becomes("isMinimized"));
    }
};

INSTANTIATE_TEST_SUITE_P(, PillAtScale, testing::Values(1, 1.5, 2));

TEST_P(PillAtScale, IsSharpAndInPlace) {
    below();
    startSinging();
    expectSharpInPlace("rest");
    expectPointerFindsIt();
}

TEST_P(PillAtScale, HasASharpMenuAndASharpPanel) {
    below();
    startSinging();
    openMenu();
    EXPECT_TRUE(shows(name("menu").constData(),
                      [&](const Picture& picture) { return isSharp(picture, textsOfMenu()); }));
    compositor->type(1);
    EXPECT_TRUE(menuCloses());
    compositor->click(middleOf("artwork"));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(shows(name("panel").constData(), [&](const Picture& picture) {
        return silhouette(picture).height() > 200 * GetParam();
    }));
}

/// A screen of 1600 x 1200 pixels.
class PillAtScaleThatChanges : public PillAtScale {
protected:
    PillAtScaleThatChanges() : PillAtScale({.size = {1600, 1200}, .scale = 1}) {}

    void setScale(double scale) {
        compositor->setScale(scale);
        const int width = static_cast<int>(std::lround(1600 / scale));
        EXPECT_TRUE(waitUntil([&] { return std::abs(below().size().width() - width) <= 1; }));
        EXPECT_TRUE(program->comesToRest());
    }
};

INSTANTIATE_TEST_SUITE_P(, PillAtScaleThatChanges, testing::Values(1.5, 2));

TEST_P(PillAtScaleThatChanges, IsSharpAndInPlace) {
    below();
    startSinging();
    setScale(GetParam());
    expectSharpInPlace("changed");
    expectPointerFindsIt();
}

TEST_P(PillAtScaleThatChanges, IsAsBeforeWhenItChangesBack) {
    below();
    startSinging();
    const Picture before = picture();
    const auto outline = silhouette(before);
    setScale(GetParam());
    setScale(1);
    EXPECT_TRUE(shows(name("changed-back").constData(),
                      [&](const Picture& picture) { return silhouette(picture) == outline; }));
    enterPill();
}

} // namespace
} // namespace brellowind::test
