// SPDX-License-Identifier: MIT

#include "platform/linux/MprisReading.h"

#include "platform/linux/MessageLine.h"
#include "session/EventLoop.h"
#include "session/LoopWatch.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QTimer>
#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace brellowind::platform {
namespace {

using testing::Optional;
using testing::VariantWith;

constexpr double infinity = std::numeric_limits<double>::infinity();
const std::string longest(longestMprisText, 'x');

using Entries = std::vector<std::pair<const char*, QVariant>>;

QVariant text(const std::string& content) {
    return QString::fromStdString(content);
}

QVariant path(const char* content) {
    return QVariant::fromValue(QDBusObjectPath(QString::fromLatin1(content)));
}

QVariant texts(const std::vector<std::string>& contents) {
    QStringList list;
    for (const auto& content : contents)
        list.append(QString::fromStdString(content));
    return list;
}

/// A variant within the property's variant.
QVariant wrapped(const QVariant& value) {
    return QVariant::fromValue(QDBusVariant(value));
}

/// An `a{sv}` with entries in this order; keys may be repeated.
QVariant mapOf(const Entries& entries) {
    QDBusArgument map;
    map.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QDBusVariant>());
    for (const auto& [key, value] : entries) {
        map.beginMapEntry();
        map << QString::fromLatin1(key) << QDBusVariant(value);
        map.endMapEntry();
    }
    map.endMap();
    return QVariant::fromValue(map);
}

QVariant mapOfTexts() {
    QDBusArgument map;
    map.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QString>());
    map.beginMapEntry();
    map << QStringLiteral("xesam:title") << QStringLiteral("Song");
    map.endMapEntry();
    map.endMap();
    return QVariant::fromValue(map);
}

QVariant structureOf(const QVariant& member) {
    QDBusArgument structure;
    structure.beginStructure();
    structure << QDBusVariant(member);
    structure.endStructure();
    return QVariant::fromValue(structure);
}

class MprisReading : public testing::Test {
protected:
    Player::Answer read(const QVariantList& arguments) {
        return readMpris(line.deliver(arguments));
    }

    /// The reading of the entries, with the default title "Song".
    Player::Snapshot snapshot(const Entries& metadata, const Entries& others = {}) {
        Entries song{{"xesam:title", text("Song")}};
        song.insert(song.end(), metadata.begin(), metadata.end());
        Entries properties{{"Metadata", mapOf(song)}};
        properties.insert(properties.end(), others.begin(), others.end());
        return std::get<Player::Snapshot>(read({mapOf(properties)}));
    }

    Track track(const char* key, const QVariant& value) { return snapshot({{key, value}}).track; }
    double duration(const QVariant& value) { return track("mpris:length", value).durationMs; }
    double position(const QVariant& value) {
        return snapshot({}, {{"Position", value}}).positionSec;
    }
    std::string artist(const QVariant& value) { return track("xesam:artist", value).artist; }
    std::optional<std::string> artwork(const std::string& location) {
        return track("mpris:artUrl", text(location)).artworkURL;
    }

    test::MessageLine line;
};

TEST_F(MprisReading, HasEveryFieldOfTheTrack) {
    const auto answer =
        read({mapOf({{"Metadata", mapOf({{"mpris:trackid", path("/com/spotify/track/1")},
                                         {"mpris:length", 215499000ULL},
                                         {"mpris:artUrl", text("https://i.scdn.co/image/ab67")},
                                         {"xesam:title", text("Größe | 日本 🎵")},
                                         {"xesam:artist", texts({"A & B"})},
                                         {"xesam:album", text("C")}})},
                     {"Position", 12'500'000LL},
                     {"PlaybackStatus", text("Playing")}})});
    const Player::Snapshot expected{
        .track = Track("Größe | 日本 🎵", "A & B", "C", 215499, "https://i.scdn.co/image/ab67"),
        .isPlaying = true,
        .positionSec = 12.5};
    EXPECT_THAT(answer, VariantWith<Player::Snapshot>(expected));
}

TEST_F(MprisReading, OfAnythingButOneMapOfPropertiesIsUnreadable) {
    const std::vector<QVariantList> replies{{},
                                            {text("Song")},
                                            {7},
                                            {texts({"Song"})},
                                            {QByteArray("Song")},
                                            {wrapped(mapOf({}))},
                                            {QVariantList{mapOf({})}},
                                            {mapOf({}), mapOf({})},
                                            {mapOfTexts()}};
    for (const auto& reply : replies) {
        const auto message = line.deliver(reply);
        EXPECT_THAT(readMpris(message), VariantWith<Player::Unreadable>(Player::Unreadable()))
            << qPrintable(message.signature());
    }
}

TEST_F(MprisReading, WithoutANameOfATrackIsThatNothingRuns) {
    const std::vector<Entries> withoutTrack{
        {},
        {{"PlaybackStatus", text("Playing")}, {"Position", 5LL}},
        {{"Metadata", mapOf({})}},
        {{"Metadata", text("Song")}},
        {{"Metadata", 7}},
        {{"Metadata", texts({"xesam:title"})}},
        {{"Metadata", QVariantList{mapOf({{"xesam:title", text("Song")}})}}},
        {{"Metadata", mapOf({{"mpris:trackid", path("/track")}, {"mpris:length", 5LL}})}},
        {{"Metadata", mapOf({{"xesam:title", text("")},
                             {"xesam:artist", texts({""})},
                             {"xesam:album", text("")}})}},
        {{"Metadata", mapOf({{"xesam:title", 7}, {"xesam:artist", texts({})}})}}};
    for (const auto& properties : withoutTrack)
        EXPECT_THAT(read({mapOf(properties)}),
                    VariantWith<Player::NotRunning>(Player::NotRunning()))
            << testing::PrintToString(&properties - withoutTrack.data());
}

TEST_F(MprisReading, NeedsOneNameOfATrack) {
    for (const char* key : {"xesam:title", "xesam:artist", "xesam:album"})
        EXPECT_TRUE(std::holds_alternative<Player::Snapshot>(
            read({mapOf({{"Metadata", mapOf({{key, text("Name")}})}})})))
            << key;
}

TEST_F(MprisReading, OfNoTrackIsThatNothingRunsWhateverItsNames) {
    const char* noTrack = "/org/mpris/MediaPlayer2/TrackList/NoTrack";
    for (const auto& id : {path(noTrack), text(noTrack), wrapped(path(noTrack))})
        EXPECT_THAT(read({mapOf({{"Metadata", mapOf({{"mpris:trackid", id},
                                                     {"xesam:title", text("Song")}})}})}),
                    VariantWith<Player::NotRunning>(Player::NotRunning()));
    EXPECT_EQ(track("mpris:trackid", text(std::string(noTrack) + "s")).title, "Song");
    EXPECT_EQ(track("mpris:trackid", 7).title, "Song");
}

TEST_F(MprisReading, TurnsMicrosecondsIntoMillisecondsOfDuration) {
    EXPECT_EQ(duration(215000000ULL), 215000);
    EXPECT_EQ(duration(215999999LL), 215999.999);
    EXPECT_EQ(duration(1500.5), 1.5005);
    EXPECT_EQ(duration(0), 0);
}

TEST_F(MprisReading, TurnsMicrosecondsIntoSecondsOfPosition) {
    EXPECT_EQ(position(12500000LL), 12.5);
    EXPECT_EQ(position(1.0e6), 1);
}

TEST_F(MprisReading, KeepsNegativeNumbers) {
    EXPECT_EQ(duration(-1000), -1);
    EXPECT_EQ(duration(QVariant::fromValue(short(-1000))), -1);
    EXPECT_EQ(position(-500000LL), -0.5);
}

TEST_F(MprisReading, TakesEveryTypeOfNumber) {
    for (const auto& value :
         {QVariant::fromValue(uchar(200)), QVariant::fromValue(short(200)),
          QVariant::fromValue(ushort(200)), QVariant::fromValue(200), QVariant::fromValue(200U),
          QVariant::fromValue(200LL), QVariant::fromValue(200ULL), QVariant::fromValue(200.0)}) {
        EXPECT_EQ(duration(value), 0.2) << value.typeName();
        EXPECT_EQ(position(value), 0.0002) << value.typeName();
    }
}

TEST_F(MprisReading, TakesNoNumberThatNoTrackCanHave) {
    for (const double value : {infinity, -infinity, std::nan(""), 1e300, -1e300}) {
        EXPECT_EQ(duration(value), 0) << value;
        EXPECT_EQ(position(value), 0) << value;
    }
    EXPECT_EQ(duration(std::numeric_limits<qulonglong>::max()), 0);
    EXPECT_EQ(position(std::numeric_limits<qlonglong>::max()), 0);
    EXPECT_EQ(position(std::numeric_limits<qlonglong>::min()), 0);
    EXPECT_DOUBLE_EQ(duration(9e18), 9e15);
    EXPECT_DOUBLE_EQ(position(9e18), 9e12);
}

TEST_F(MprisReading, TakesNoNumberOfAnotherType) {
    for (const auto& value : {QVariant(true), text("7"), path("/7"), texts({"7"}),
                              QVariant(QVariantList{7}), structureOf(7), mapOf({{"7", 7}})}) {
        EXPECT_EQ(duration(value), 0) << value.typeName();
        EXPECT_EQ(position(value), 0) << value.typeName();
    }
}

TEST_F(MprisReading, TellsWhetherThePlayerPlaysWhateverTheCase) {
    const auto plays = [this](const QVariant& status) {
        return snapshot({}, {{"PlaybackStatus", status}}).isPlaying;
    };
    for (const char* playing : {"Playing", "playing", "PLAYING"})
        EXPECT_TRUE(plays(text(playing))) << playing;
    for (const char* other : {"Paused", "Stopped", "", "Playing ", "Play"})
        EXPECT_FALSE(plays(text(other))) << other;
    EXPECT_FALSE(plays(1));
    EXPECT_FALSE(plays(path("/Playing")));
    EXPECT_FALSE(snapshot({}).isPlaying);
}

TEST_F(MprisReading, TakesCoversFromTheImageHostThatAnswers) {
    EXPECT_THAT(artwork("https://open.spotify.com/image/ab67?x=1"),
                Optional(std::string("https://i.scdn.co/image/ab67?x=1")));
    EXPECT_THAT(artwork("http://open.spotify.com/image/ab67"),
                Optional(std::string("https://i.scdn.co/image/ab67")));
}

TEST_F(MprisReading, LeavesOtherCoverLocationsAlone) {
    for (const std::string location :
         {"https://i.scdn.co/image/ab67", "https://open.spotify.com/images/ab67",
          "https://open.spotify.com.example/image/ab67",
          "https://open.spotify.com/track/image/ab67", "file:///tmp/cover.png", "not a location",
          "https://other.example/?u=https://open.spotify.com/image/ab67"})
        EXPECT_THAT(artwork(location), Optional(location));
}

TEST_F(MprisReading, HasNoCoverWithoutALocation) {
    EXPECT_EQ(artwork(""), std::nullopt);
    EXPECT_EQ(snapshot({}).track.artworkURL, std::nullopt);
    EXPECT_EQ(track("mpris:artUrl", false).artworkURL, std::nullopt);
}

TEST_F(MprisReading, TakesNoCoverFromALocationThatIsTooLong) {
    EXPECT_THAT(artwork(longest), Optional(longest));
    EXPECT_EQ(artwork(longest + 'x'), std::nullopt);
    EXPECT_EQ(artwork(longest.substr(1) + "é"), std::nullopt);
}

TEST_F(MprisReading, TakesTextsAsTheyAre) {
    const std::string odd = " \ttwo\nlines\r\a\x1F\u0085\u200F\uFDD0%s \\ \"x\" ";
    EXPECT_EQ(track("xesam:title", text(odd)).title, odd);
    EXPECT_EQ(artist(texts({odd})), odd);
    EXPECT_EQ(track("xesam:album", text(odd)).album, odd);
}

TEST_F(MprisReading, CutsTextsThatAreTooLongBetweenTwoCharacters) {
    const std::string before = longest.substr(1);
    const auto title = [this](const std::string& content) {
        return track("xesam:title", text(content)).title;
    };
    EXPECT_EQ(title(longest), longest);
    EXPECT_EQ(title(longest + 'x'), longest);
    EXPECT_EQ(title(before + "é"), before);
    EXPECT_EQ(title(before + "🎵"), before);
    EXPECT_EQ(title(longest + "🎵"), longest);
    EXPECT_EQ(artist(texts({longest + 'x'})), longest);
    EXPECT_EQ(artist(text(longest + 'x')), longest);
    EXPECT_EQ(track("xesam:album", text(longest + 'x')).album, longest);
}

TEST_F(MprisReading, TakesTheFirstArtist) {
    EXPECT_EQ(artist(texts({"A", "B"})), "A");
    EXPECT_EQ(artist(texts({"", "B"})), "");
    EXPECT_EQ(artist(texts({})), "");
    EXPECT_EQ(artist(text("A, B")), "A, B");
    EXPECT_EQ(artist(QVariantList{text("A"), 7}), "A");
    EXPECT_EQ(artist(QVariantList{wrapped(text("A"))}), "A");
    EXPECT_EQ(artist(QVariantList{7, text("B")}), "");
    EXPECT_EQ(artist(QVariantList()), "");
    EXPECT_EQ(artist(QByteArray("A")), "");
    EXPECT_EQ(artist(mapOf({{"name", text("A")}})), "");
}

TEST_F(MprisReading, TakesWhatIsWrappedInFurtherVariants) {
    EXPECT_EQ(track("xesam:title", wrapped(wrapped(text("Other")))).title, "Other");
    EXPECT_EQ(duration(wrapped(5000ULL)), 5);
    const auto metadata = wrapped(mapOf({{"xesam:title", text("Other")}}));
    EXPECT_EQ(snapshot({}, {{"Metadata", metadata}}).track.title, "Other");
}

TEST_F(MprisReading, GoesOnAfterWhatItDoesNotKnow) {
    const auto read = snapshot({{"xesam:genre", QVariantList{QVariantList{1, 2}, text("a")}},
                                {"xesam:artist", structureOf(text("no artist"))},
                                {"xesam:album", text("Album")}},
                               {{"Rate", structureOf(mapOf({{"x", text("y")}}))},
                                {"Volume", wrapped(mapOf({{"x", wrapped(7)}}))},
                                {"PlaybackStatus", text("Playing")}});
    EXPECT_EQ(read.track, Track("Song", "", "Album", 0, std::nullopt));
    EXPECT_TRUE(read.isPlaying);
}

TEST_F(MprisReading, TakesTheLastOfPropertiesThatCameTwice) {
    EXPECT_EQ(track("xesam:title", text("Other")).title, "Other");
    EXPECT_FALSE(
        snapshot({}, {{"PlaybackStatus", text("Playing")}, {"PlaybackStatus", text("Paused")}})
            .isPlaying);
}

TEST_F(MprisReading, OfAnExcessOfAnythingTakesNoTime) {
    QVariantMap fields;
    for (int i = 0; i < 200'000; ++i)
        fields.insert(QString::number(i), i);
    const QVariant names = QStringList(500'000, QStringLiteral("x"));
    const std::pair<const char*, QVariantMap> excesses[] = {
        {"artists", {{QStringLiteral("Metadata"), mapOf({{"xesam:artist", names}})}}},
        {"unknown list", {{QStringLiteral("Metadata"), mapOf({{"xesam:genre", names}})}}},
        {"title", {{QStringLiteral("Metadata"), mapOf({{"xesam:title", QString(4 << 20, u'x')}})}}},
        {"fields", {{QStringLiteral("Metadata"), fields}}},
        {"properties", fields},
    };
    for (const auto& [name, properties] : excesses) {
        const auto message = line.deliver({properties});
        test::LoopWatch watch;
        QTimer::singleShot(0, qApp, [&message] { readMpris(message); });
        test::runFor(std::chrono::milliseconds(1));
        EXPECT_LT(watch.longestTurn(), test::LoopWatch::bearable()) << name;
    }
}

} // namespace
} // namespace brellowind::platform
