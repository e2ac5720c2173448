// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"
#include "session/LoopWatch.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace brellowind::test {
namespace {

constexpr qsizetype longestBody = 1 << 20; ///< bytes

struct Line {
    const char* name;
    QString unit; ///< repeated up to the maximum size of an answer

    friend void PrintTo(const Line& line, std::ostream* out) { *out << line.name; }
};

/// A service whose lyrics are one line of the maximum size.
class HostileLine : public PillOnDesktop, public testing::WithParamInterface<Line> {
protected:
    void play(const QString& title) {
        player->setTrack(PlayerProcess::metadata(title, QStringLiteral("Artist"),
                                                 QStringLiteral("Album"), 600000));
    }

    static QByteArray lyrics() {
        const QString& unit = GetParam().unit;
        const QString line = unit.repeated((longestBody - 100) / unit.toUtf8().size());
        return QJsonDocument(QJsonObject{{QStringLiteral("syncedLyrics"),
                                          QStringLiteral("[00:00.00]") + line}})
            .toJson();
    }
};

TEST_P(HostileLine, NeverKeepsTheMainLoop) {
    const auto noLyrics = [](const demo::Exchange& exchange) { exchange.respond(404, "{}"); };
    const auto inManyScripts = QStringLiteral("aशक字ไ😀");
    startSinging();
    service.handler = noLyrics;
    play(inManyScripts); // loads the fonts
    EXPECT_TRUE(program->shows(inManyScripts));
    EXPECT_TRUE(program->comesToRest());
    program->longestTurn();
    service.handler = [](const demo::Exchange& exchange) { exchange.respond(200, lyrics()); };
    play(QStringLiteral("Hostile"));
    EXPECT_TRUE(waitUntil([&] { return program->text().startsWith(GetParam().unit); }));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_LT(program->longestTurn(), LoopWatch::bearable());
    service.handler = noLyrics;
    play(QStringLiteral("Next"));
    EXPECT_TRUE(program->shows(QStringLiteral("Next")));
    EXPECT_TRUE(program->comesToRest());
    EXPECT_LT(program->longestTurn(), LoopWatch::bearable());
}

INSTANTIATE_TEST_SUITE_P(OfAMebibyte, HostileLine,
                         testing::Values(Line{"Letters", QStringLiteral("x")},
                                         Line{"Marks", QStringLiteral("\u0301")},
                                         Line{"Words", QStringLiteral("word ")},
                                         Line{"ManyScripts", QStringLiteral("aशक字ไ😀")}),
                         [](const auto& line) { return line.param.name; });

} // namespace
} // namespace brellowind::test
