// SPDX-License-Identifier: MIT

#include "pictures/Comparison.h"
#include "pictures/KeptPicture.h"
#include "pictures/PillStage.h"

#include <QGuiApplication>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

/// A picture test: how to set up the pill, and the part of it that is compared.
struct Look {
    const char* name;
    std::function<QImage(PillStage&)> picture;

    friend void PrintTo(const Look& look, std::ostream* out) { *out << look.name; }
};

std::function<QImage(PillStage&)> line(const char* text) {
    return [text](PillStage& stage) {
        stage.sing(QString::fromUtf8(text));
        return stage.pill();
    };
}

const auto shortLine = QStringLiteral("Hold the light, hold it low");
const auto longLine =
    QStringLiteral("Now the kettle keeps the tempo, now the rain has learned the tune");

QImage minimised(PillStage& stage) {
    stage.sing(shortLine);
    stage.view().tapBackground();
    stage.rest();
    return stage.pill();
}

QImage hovered(PillStage& stage) {
    stage.sing(shortLine);
    stage.setPointerInside(true);
    stage.view().hoverCover(true);
    stage.view().hoverWaveform(true);
    stage.view().hoverGrabber(true);
    stage.rest();
    return stage.pill();
}

QImage artworkPanel(PillStage& stage, bool withCover) {
    stage.sing(shortLine, withCover);
    stage.view().tapCover();
    stage.setPointerInside(true);
    stage.rest();
    return stage.pill();
}

QImage menu(PillStage& stage) {
    return stage.menu(QStringLiteral("Check for Updates…"));
}

const auto endlessLine = QStringLiteral(
    "and somebody left a saucer on the windowsill for the moon, and the moon came down to "
    "drink, and the cat looked on, and nobody in the whole of the street said a word");
const auto endlessArabic = QString::fromUtf8(
    "ارفع الضوء عاليا في آخر الطريق وقل للقمر أن ينزل إلى النافذة ليشرب من الصحن الصغير، والقطة "
    "تنظر إليه ولا يقول أحد في الشارع كله كلمة");

/// The pill, or its panel, some seconds after the start of a song with a long line.
std::function<QImage(PillStage&)> glide(const QString& line, double seconds, bool inPanel = false) {
    return [line, seconds, inPanel](PillStage& stage) {
        if (inPanel)
            stage.view().tapCover();
        stage.play(QStringLiteral("Paper Lanterns for Everybody Who Could Not Come Tonight"),
                   QStringLiteral("The Windowsill Quartet and the Kettles of the Lower Street"),
                   QStringLiteral("[00:00.00]") + line, true);
        for (int i = 0; i < 60 * seconds; ++i)
            stage.step();
        return stage.pill();
    };
}

// What depends on the scale is kept at both, the rest at one.

const Look looksAt1x[] = {
    {"default", line("Hold the light, hold it low")},
    {"hovered", hovered},
    {"minimised", minimised},
    {"long-line-middle", glide(endlessLine, 6)},
    {"arabic", line("ارفع الضوء عاليا في آخر الطريق")},
    {"chinese-japanese-korean", line("夜に駆ける 明日へ 把灯举起来 불을 낮게 들어")},
    {"combining-marks", line("Z̲a̲l̲g̲o̲ l̃ı̇g̃h̃t̃, Việt Nam, e\xCC\x81t\xC3\xA9")},
    {"artwork", [](PillStage& stage) { return artworkPanel(stage, true); }},
    {"artwork-placeholder", [](PillStage& stage) { return artworkPanel(stage, false); }},
    {"menu", menu},
};

const Look looksAt2x[] = {
    {"default", line("Hold the light, hold it low")},
    {"hovered", hovered},
    {"long-arabic-end", glide(endlessArabic, 20)},
    {"hebrew", line("תחזיק את האור נמוך, 7 רחובות מכאן")},
    {"devanagari", line("रोशनी को थामो, धीरे धीरे चलो")},
    {"emoji", line("🎵 Hold the light 🏮 1️⃣ hold it low 👩‍🚀🌙 👍🏽 🇯🇵 🏳️‍🌈 🎶")},
    {"artwork", [](PillStage& stage) { return artworkPanel(stage, true); }},
    {"artwork-long-middle", glide(endlessLine, 4, true)},
    {"menu", menu},
};

class Pictures : public testing::TestWithParam<Look> {};

TEST_P(Pictures, LookAsTheyAreKept) {
    PillStage stage;
    expectKept(GetParam().picture(stage), QString::fromLatin1(GetParam().name));
}

std::string testName(const testing::TestParamInfo<Look>& parameter) {
    std::string name = parameter.param.name;
    std::erase(name, '-');
    return name;
}

INSTANTIATE_TEST_SUITE_P(At1x, Pictures, testing::ValuesIn(looksAt1x), testName);
INSTANTIATE_TEST_SUITE_P(At2x, Pictures, testing::ValuesIn(looksAt2x), testName);

struct Motion {
    const char* name;
    std::function<void(PillStage&)> begin;

    friend void PrintTo(const Motion& motion, std::ostream* out) { *out << motion.name; }
};

class Motions : public testing::TestWithParam<Motion> {};

/// Of 255, for rounding of antialiased edges by the renderer.
constexpr int invisible = 2;

/// The width of the flares at the pill's top corners.
constexpr double flare = 8;

/// The largest difference from the empty desktop of any pixel outside the pill.
int strongestStepAround(const QImage& window, const QImage& desktop, const QRectF& pill) {
    const double scale = desktop.devicePixelRatio();
    const auto pixels = [scale](const QRectF& rect) {
        return QRectF(rect.topLeft() * scale, rect.size() * scale).toAlignedRect();
    };
    const QRect body = pixels(pill.adjusted(flare, 0, -flare, 0));
    const QRect top = pixels(QRectF(pill.x(), 0, pill.width(), 1.1 * flare));
    int strongest = 0;
    for (int y = 0; y < desktop.height(); ++y) {
        for (int x = 0; x < desktop.width(); ++x)
            if (!body.contains(x, y) && !top.contains(x, y))
                strongest =
                    std::max(strongest, colourDistance(window.pixel(x, y), desktop.pixel(x, y)));
    }
    return strongest;
}

TEST_P(Motions, DrawInsideThePillAloneInEveryFrame) {
    PillStage stage;
    stage.sing(shortLine);
    const QImage desktop = stage.desktop();
    GetParam().begin(stage);
    for (int frame = 0; frame < 40; ++frame) {
        ASSERT_LE(strongestStepAround(stage.window(), desktop, stage.pillRect()), invisible)
            << "frame " << frame;
        stage.step();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Beginnings, Motions,
    testing::Values(Motion{"Expand", [](PillStage& stage) { stage.view().tapCover(); }},
                    Motion{"Close",
                           [](PillStage& stage) {
                               stage.view().tapCover();
                               stage.rest();
                               stage.window();
                               stage.view().tapArtwork();
                           }},
                    Motion{"Minimise", [](PillStage& stage) { stage.view().tapBackground(); }},
                    Motion{"LineChange",
                           [](PillStage& stage) {
                               stage.play(QStringLiteral("Song"), QStringLiteral("Artist"),
                                          QStringLiteral("[00:00.00]") + longLine, true);
                           }},
                    Motion{"Pulse", [](PillStage& stage) { stage.setPlaying(false); }}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

} // namespace
} // namespace brellowind::test

int main(int argc, char** argv) {
    brellowind::test::prepareForPictures();
    const QGuiApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
