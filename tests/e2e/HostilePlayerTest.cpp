// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"
#include "session/LoopWatch.h"
#include "session/ProcessUse.h"

#include <QDBusConnectionInterface>
#include <QDBusVariant>
#include <cmath>
#include <limits>
#include <vector>

namespace brellowind::test {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

const auto line = QStringLiteral("line");
const auto noMusic = QStringLiteral("No music playing");
const auto busName = QStringLiteral("org.mpris.MediaPlayer2.spotify");
const auto metadataKey = QStringLiteral("Metadata");

class HostilePlayer : public PillOnDesktop {
protected:
    QVariantMap song() {
        auto metadata = PlayerProcess::metadata(QStringLiteral("Song"), QStringLiteral("Artist"),
                                                QStringLiteral("Album"), 600000);
        metadata.insert(QStringLiteral("mpris:artUrl"), service.origin() + QStringLiteral("/art"));
        return metadata;
    }

    void startPlayer() {
        player.reset();
        player.emplace(desktop.bus.connection());
        player->setTrack(song());
        player->setStatus("Playing");
    }

    /// Pointing at the pill lifts it.
    void expectThatThePillMoves() {
        EXPECT_TRUE(program->comesToRest());
        const QSizeF before = program->pillSize();
        enterPill();
        EXPECT_NE(program->pillSize(), before);
        leavePill();
        EXPECT_EQ(program->pillSize(), before);
    }

    /// The resource usage of the program.
    ProcessUse use() { return ProcessUse(program->process().processId()); }
};

TEST_F(HostilePlayer, ThatDiesAtAnyMomentIsForgottenAndFollowedAgainOnceItIsBack) {
    startPlayer();
    player->kill();
    start(); // before the first reading
    EXPECT_TRUE(program->shows(noMusic));
    startPlayer();
    ASSERT_TRUE(program->shows(line));
    player->kill(); // while it plays
    EXPECT_TRUE(program->shows(noMusic));
    startPlayer();
    ASSERT_TRUE(program->shows(line));
    player->setStatus("Paused");
    ASSERT_TRUE(program->becomes("isPlaying", false));
    player->kill(); // while it pauses
    EXPECT_TRUE(program->shows(noMusic));
    EXPECT_TRUE(program->comesToRest());
    startPlayer();
    ASSERT_TRUE(program->shows(line));
    player->setAnswer("death"); // in the middle of a reading
    EXPECT_TRUE(program->shows(noMusic));
    startPlayer();
    EXPECT_TRUE(program->shows(line));
    EXPECT_TRUE(program->comesToRest());
    expectThatThePillMoves();
}

TEST_F(HostilePlayer, ThatDiesAgainAndAgainLeavesNothingBehind) {
    startSinging();
    const auto dieAndComeBack = [&] {
        player->kill();
        EXPECT_TRUE(program->shows(noMusic));
        startPlayer();
        EXPECT_TRUE(program->shows(line));
    };
    for (int i = 0; i < 3; ++i)
        dieAndComeBack();
    const qint64 descriptors = use().descriptors();
    const qint64 memory = use().memoryKiB();
    for (int i = 0; i < 8; ++i)
        dieAndComeBack();
    EXPECT_LE(use().descriptors(), descriptors + 2); // a connection to the service may linger
    EXPECT_LT(use().memoryKiB() - memory, growthWithoutLeakKiB);
}

TEST_F(HostilePlayer, ThatHangsLeavesThePillAsItWasAndMoving) {
    startSinging();
    const qint64 descriptors = use().descriptors();
    program->longestTurn();
    player->hang();
    runFor(seconds(3));
    EXPECT_EQ(program->text(), line);
    EXPECT_TRUE(program->is("isPlaying"));
    expectThatThePillMoves();
    EXPECT_LT(program->longestTurn(), LoopWatch::bearable());
    EXPECT_LE(use().descriptors(), descriptors + 2); // a connection to the service may linger
    player->recover();
    player->setStatus("Paused");
    EXPECT_TRUE(program->becomes("isPlaying", false));
}

TEST_F(HostilePlayer, ThatFloodsTheBusCostsTheProgramNothing) {
    startSinging();
    program->longestTurn();
    const qint64 memory = use().memoryKiB();
    const auto before = use().processorTime();
    player->flood(10'000);
    runFor(seconds(3));
    EXPECT_LT(use().processorTime() - before, milliseconds(isInstrumented ? 6000 : 600));
    EXPECT_LT(use().memoryKiB() - memory, growthWithoutLeakKiB);
    EXPECT_LT(program->longestTurn(), LoopWatch::bearable());
    player->flood(0);
    player->setStatus("Paused");
    EXPECT_TRUE(program->becomes("isPlaying", false));
}

struct Absurdity {
    const char* name;
    QVariantMap properties;
    QString text; ///< of the pill

    friend void PrintTo(const Absurdity& absurdity, std::ostream* out) { *out << absurdity.name; }
};

QVariantMap with(const char* key, const QVariant& value, const QVariant& position = 0LL) {
    auto metadata = PlayerProcess::metadata(QStringLiteral("Odd"), QStringLiteral("Artist"),
                                            QStringLiteral("Album"), 600000);
    metadata.insert(QString::fromLatin1(key), value);
    return {{metadataKey, metadata},
            {QStringLiteral("Position"), position},
            {QStringLiteral("PlaybackStatus"), QStringLiteral("Playing")}};
}

TEST_F(HostilePlayer, ThatSaysAbsurdThingsHarmsNothing) {
    const double infinity = std::numeric_limits<double>::infinity();
    const auto note = QStringLiteral("♪"); // before the first line
    const QString longTitle(1 << 20, u'x');
    const QString controls = QStringLiteral("a\x01\x02\n\t\x7f\u202e\u0300b");
    const std::vector<Absurdity> absurdities{
        {"NegativeLength", with("mpris:length", -5LL), line},
        {"HugeLength", with("mpris:length", std::numeric_limits<qlonglong>::max()), line},
        {"LengthThatIsNoNumber", with("mpris:length", std::nan("")), line},
        {"InfiniteLength", with("mpris:length", infinity), line},
        {"NegativePosition", with("mpris:length", 1LL, -60'000'000LL), note},
        {"HugePosition", with("mpris:length", 2LL, std::numeric_limits<qlonglong>::max()), line},
        {"PositionThatIsNoNumber", with("mpris:length", 3LL, std::nan("")), line},
        {"InfinitePosition", with("mpris:length", 4LL, -infinity), line},
        {"TitleOfAMegabyte", with("xesam:title", longTitle), line},
        {"ControlCharacters", with("xesam:title", controls), line},
        {"TitleOfAWrongType", with("xesam:title", 7), line},
        {"NoArtists", with("xesam:artist", QStringList()), line},
        {"TrackWithoutValidId", with("mpris:trackid", QStringLiteral("no/object//path")), line},
        {"ArtworkWithoutAddress", with("mpris:artUrl", QStringLiteral("\x01://\\ %%%")), line},
        {"NoMetadata", {{QStringLiteral("PlaybackStatus"), QStringLiteral("Playing")}}, noMusic},
        {"MetadataOfAWrongType", {{metadataKey, QStringLiteral("Song")}}, noMusic},
    };
    startSinging();
    for (const auto& absurdity : absurdities) {
        SCOPED_TRACE(absurdity.name);
        player->setProperties(absurdity.properties);
        const unsigned before = player->requests();
        EXPECT_TRUE(waitUntil([&] { return player->requests() > before; }));
        runFor(milliseconds(50)); // it reads the answer
        EXPECT_TRUE(program->shows(absurdity.text)) << qPrintable(program->text().left(100));
    }
    player->setProperties({});
    EXPECT_TRUE(program->becomes("isPlaying"));
    EXPECT_TRUE(program->shows(line));
    expectThatThePillMoves();
}

QVariantMap manyFields(int count) {
    QVariantMap fields;
    for (int i = 0; i < count; ++i)
        fields.insert(QString::number(i), i);
    return fields;
}

TEST_F(HostilePlayer, ThatSendsAMegabyteOfAnythingNeverKeepsTheMainLoop) {
    constexpr qsizetype megabyte = 1 << 20;
    const QString latin(megabyte, u'x');
    const QString marks(megabyte / 2, u'\u0301'); // all on one letter
    const QString inManyScripts = QStringLiteral("aशक字ไ😀");
    const QString scripts = inManyScripts.repeated(megabyte / 16);
    const std::vector<std::pair<const char*, QVariantMap>> excesses{
        {"Title", with("xesam:title", latin)},
        {"TitleOfMarks", with("xesam:title", marks)},
        {"TitleInManyScripts", with("xesam:title", scripts)},
        {"Artist", with("xesam:artist", QStringList{latin})},
        {"Artists", with("xesam:artist", QStringList(megabyte / 8, QStringLiteral("x")))},
        {"Cover", with("mpris:artUrl", service.origin() + u'/' + latin)},
        {"Fields", with("more", manyFields(megabyte / 24))},
        {"Status", {{QStringLiteral("PlaybackStatus"), latin}}},
    };
    service.handler = [](const demo::Exchange& exchange) { exchange.respond(404, "{}"); };
    player.emplace(desktop.bus.connection());
    player->setProperties(with("xesam:title", inManyScripts)); // loads the fonts
    start();
    EXPECT_TRUE(program->shows(inManyScripts));
    EXPECT_TRUE(program->comesToRest());
    for (const auto& [name, properties] : excesses) {
        SCOPED_TRACE(name);
        program->longestTurn();
        player->setProperties(properties);
        const unsigned before = player->requests();
        EXPECT_TRUE(waitUntil([&] { return player->requests() > before; }));
        EXPECT_TRUE(program->comesToRest());
        EXPECT_LT(program->longestTurn(), LoopWatch::bearable());
    }
    player->setProperties({});
    player->setTrack(song());
    EXPECT_TRUE(program->shows(QStringLiteral("Song")));
    expectThatThePillMoves();
}

TEST_F(HostilePlayer, WhoseNameAStrangerTakesIsKeptUntilThePlayerIsBack) {
    startSinging();
    auto bus = desktop.bus.connection();
    ASSERT_TRUE(bus.interface()
                    ->registerService(busName, QDBusConnectionInterface::QueueService)
                    .isValid());
    player->kill();
    runFor(seconds(3));
    EXPECT_EQ(program->text(), line) << "every reading failed";
    EXPECT_TRUE(program->is("isPlaying"));
    expectThatThePillMoves();
    bus.interface()->unregisterService(busName);
    EXPECT_TRUE(program->shows(noMusic));
    startPlayer();
    EXPECT_TRUE(program->shows(line));
}

TEST_F(HostilePlayer, WhoseBusIsGoneForEverLeavesAPillThatMovesAndEnds) {
    startSinging();
    const auto window = program->window();
    const auto moves = [&](QPoint place) {
        const QRegion before = x.shape(window, XCB_SHAPE_SK_BOUNDING);
        person.pointAt(place);
        return waitUntil([&] { return x.shape(window, XCB_SHAPE_SK_BOUNDING) != before; });
    };
    desktop.bus.end();
    runFor(seconds(2));
    const auto before = use().processorTime();
    runFor(seconds(2));
    EXPECT_LT(use().processorTime() - before, milliseconds(isInstrumented ? 4000 : 500));
    ASSERT_TRUE(program->process().isRunning());
    EXPECT_TRUE(x.isViewable(window));
    EXPECT_TRUE(moves({screenSize.width() / 2, 4}));
    EXPECT_TRUE(moves({2, screenSize.height() - 2}));
    EXPECT_EQ(program->process().end(), 0);
}

} // namespace
} // namespace brellowind::test
