// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

#include <cmath>

namespace brellowind::test {
namespace {

class PillPlace : public PillOnCompositor {
protected:
    /// Checks that the pill's silhouette is at the reported position, to a pixel.
    bool isInPlace(const Picture& picture) {
        const QRect seen = silhouette(picture);
        const QRectF told = place("pill");
        return seen.top() == 0 && std::abs(seen.left() - told.left()) <= 1 &&
               std::abs(seen.right() + 1 - told.right()) <= 1 &&
               std::abs(seen.bottom() + 1 - told.bottom()) <= 1;
    }
};

TEST_F(PillPlace, HangsFromTheMiddleOfTheTopEdge) {
    below();
    startSinging();
    EXPECT_TRUE(shows("rest", [&](const Picture& picture) { return isInPlace(picture); }));
    const Picture seen = picture();
    const QRectF pill = place("pill");
    EXPECT_EQ(seen.at({640, 2}), QColor(Qt::black));
    EXPECT_DOUBLE_EQ(pill.center().x(), 640);
    for (int row = 0; row < pill.bottom(); ++row)
        EXPECT_LE(std::abs(seen.offCentre(row, colourBelow()).value_or(99)), 1) << row;
}

TEST_F(PillPlace, IsAsWideAsItsLine) {
    startSinging();
    const double before = place("pill").width();
    player->setTrack(PlayerProcess::metadata(QStringLiteral("Another"), QStringLiteral("Artist"),
                                             QStringLiteral("Album"), 600000));
    service.handler = [](const demo::Exchange& exchange) {
        exchange.respond(
            200,
            R"({"syncedLyrics":"[00:00.00]a line that is far longer than the pill without it"})");
    };
    EXPECT_TRUE(
        program->shows(QStringLiteral("a line that is far longer than the pill without it")));
    below();
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(shows("long-line", [&](const Picture& picture) { return isInPlace(picture); }));
    EXPECT_GT(place("pill").width(), before);
}

TEST_F(PillPlace, StandsAboveAFullScreenWindowThatComesLater) {
    startSinging();
    below();
    EXPECT_TRUE(shows("full-screen", [&](const Picture& picture) {
        return isInPlace(picture) && picture.at({640, 2}) == Qt::black;
    }));
}

TEST_F(PillPlace, StandsAboveAPanelAndIsNotMovedByIt) {
    const QColor panelColour(0xcc, 0x99, 0x33);
    const auto window = PressLog::maximized(*compositor, colourBelow());
    startSinging();
    const auto panel = PressLog::panel(*compositor, panelColour);
    EXPECT_TRUE(shows("panel", [&](const Picture& picture) {
        return picture.at({10, 10}) == panelColour && picture.at({640, 2}) == Qt::black &&
               picture.offCentre(10, panelColour) == 0;
    }));
}

} // namespace
} // namespace brellowind::test
