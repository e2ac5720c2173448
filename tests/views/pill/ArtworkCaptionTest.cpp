// SPDX-License-Identifier: MIT

#include "views/pill/ArtworkCaption.h"

#include "views/Painting.h"
#include "views/SteppedFrames.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace brellowind {
namespace {

/// The relative luminance of a colour, 0 to 1.
double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(double light, double dark) {
    return (light + 0.05) / (dark + 0.05);
}

/// The luminance of the brightest pixel within `rect`, in points.
double brightest(const QImage& image, QRectF rect) {
    const double ratio = image.devicePixelRatio();
    const QRect pixels = QRectF(rect.topLeft() * ratio, rect.size() * ratio).toRect();
    double most = 0;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y)
        for (int x = pixels.left(); x <= pixels.right(); ++x)
            most = std::max(most, luminance(image.pixelColor(x, y)));
    return most;
}

TEST(ArtworkCaption, CanBeReadOnACoverOfAnyLightColour) {
    for (const QColor color : {QColor(Qt::white), QColor(Qt::yellow), QColor(Qt::cyan)}) {
        test::SteppedFrames frames;
        ArtworkCaption caption(frames, nullptr);
        QImage cover(320, 320, QImage::Format_RGB32);
        cover.fill(color);
        caption.setImage(cover);
        const auto paintAll = [&](QPainter& painter) {
            caption.paint(painter);
            for (auto* text : caption.childItems()) {
                painter.save();
                painter.translate(text->position());
                text->paint(painter);
                painter.restore();
            }
        };
        const auto painted = [&] { return test::painted(caption.size().toSize(), paintAll, 2); };
        const QRectF artist(0, 0, 320, caption.height() / 2 - 4);
        const QRectF title(0, caption.height() / 2 + 4, 320, caption.height() / 2 - 24);
        const double behind = brightest(painted(), artist);
        caption.setTexts(QStringLiteral("HHHHHH"), QStringLiteral("HHHHHH"));
        const QImage image = painted();
        EXPECT_GE(contrast(brightest(image, artist), behind), 4.5) << color.name().toStdString();
        EXPECT_GE(contrast(brightest(image, title), behind), 4.5) << color.name().toStdString();
        EXPECT_GT(brightest(image, title), brightest(image, artist));
    }
}

TEST(ArtworkCaption, LiesOnTheCoverBlurredByATwentiethOfItsSide) {
    test::SteppedFrames frames;
    ArtworkCaption caption(frames, nullptr);
    QImage cover(320, 320, QImage::Format_RGB32);
    cover.fill(Qt::black);
    QPainter(&cover).fillRect(160, 0, 160, 320, Qt::white);
    caption.setImage(cover);
    const QImage image =
        test::painted(caption.size().toSize(), [&](QPainter& painter) { caption.paint(painter); });
    const auto grey = [&](int x) { return double(image.pixelColor(x, 4).green()); };
    const double dark = grey(20);
    const double light = grey(300);
    ASSERT_GT(light - dark, 20);
    int between = 0; // one standard deviation to each side of the edge
    for (int x = 0; x < image.width(); ++x)
        between += std::abs((grey(x) - dark) / (light - dark) - 0.5) < 0.341;
    EXPECT_NEAR(between, 2 * 16, 4);
}

} // namespace
} // namespace brellowind
