#include "platform/linux/MprisRecord.h"
#include "platform/linux/MprisSession.h"

#include "session/EventLoop.h"

#include <QDBusVariant>
#include <gmock/gmock.h>

namespace brellowind::platform {
namespace {

using test::PlayerProcess;
using testing::Optional;

using MprisPlayerTest = MprisSession;

TEST_F(MprisPlayerTest, ReadsOutSevenFieldsOfTheTrack) {
    PlayerProcess player(bus.connection());
    auto metadata = PlayerProcess::metadata(QStringLiteral("Größe | 日本 🎵"),
                                            QStringLiteral("A & B"), QStringLiteral("C"), 215499);
    metadata[QStringLiteral("mpris:artUrl")] = QStringLiteral("https://i.scdn.co/image/ab67");
    player.setTrack(metadata);
    player.setPosition(12.5);
    player.setStatus("Paused");
    const auto outcome = reader().execute(readOut);
    EXPECT_THAT(outcome.text, Optional(std::string("Größe | 日本 🎵\x1F"
                                                   "A & B\x1F"
                                                   "C\x1F"
                                                   "215499\x1F"
                                                   "https://i.scdn.co/image/ab67\x1F"
                                                   "12.5\x1F"
                                                   "paused")));
    EXPECT_EQ(outcome.error, std::nullopt);
}

TEST_F(MprisPlayerTest, TheStateOfAPlayerThatPlaysIsPlaying) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    player.setStatus("Playing");
    const auto outcome = reader().execute(readOut);
    EXPECT_THAT(outcome.text, Optional(testing::EndsWith("\x1Fplaying")));
}

TEST_F(MprisPlayerTest, OneReadingIsOneRequestToThePlayer) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto reads = reader();
    const unsigned before = player.requests();
    ASSERT_TRUE(reads.execute(readOut).text.has_value());
    EXPECT_EQ(player.requests() - before, 1U);
    ASSERT_TRUE(reads.execute(readOut).text.has_value());
    EXPECT_EQ(player.requests() - before, 2U);
}

TEST_F(MprisPlayerTest, LookingForRunningPlayersAsksNoPlayer) {
    PlayerProcess player(bus.connection());
    const unsigned before = player.requests();
    ASSERT_EQ(reader().bundleIdentifiers().size(), 1U);
    EXPECT_EQ(player.requests(), before);
}

TEST_F(MprisPlayerTest, TogglesPlaybackInBothDirections) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    player.setStatus("Paused");
    auto toggles = reader();
    const auto outcome = toggles.execute(toggle);
    EXPECT_EQ(outcome.error, std::nullopt);
    EXPECT_THAT(toggles.execute(readOut).text, Optional(testing::EndsWith("\x1Fplaying")));
    toggles.execute(toggle);
    EXPECT_THAT(toggles.execute(readOut).text, Optional(testing::EndsWith("\x1Fpaused")));
}

TEST_F(MprisPlayerTest, ToggleIsOneRequestToThePlayer) {
    PlayerProcess player(bus.connection());
    const unsigned before = player.requests();
    reader().execute(toggle);
    EXPECT_EQ(player.requests() - before, 1U);
}

TEST_F(MprisPlayerTest, AnUnknownScriptGivesNeitherTextNorErrorAndReachesNobody) {
    PlayerProcess player(bus.connection());
    const unsigned before = player.requests();
    for (const char* script : {"", "read out ", "Read out", "toggle\n"}) {
        const auto outcome = reader().execute(script);
        EXPECT_EQ(outcome.text, std::nullopt) << script;
        EXPECT_EQ(outcome.error, std::nullopt) << script;
    }
    EXPECT_EQ(player.requests(), before);
}

TEST_F(MprisPlayerTest, AReplyOfTheWrongTypeIsAnError) {
    PlayerProcess player(bus.connection());
    player.setTrack(song("Song"));
    auto reads = reader();
    for (const char* manner : {"text", "nothing"}) {
        player.setAnswer(manner);
        const auto outcome = reads.execute(readOut);
        EXPECT_EQ(outcome.text, std::nullopt) << manner;
        EXPECT_THAT(outcome.error, Optional(testing::HasSubstr("wrong type"))) << manner;
    }
    player.setAnswer("");
    EXPECT_THAT(reads.execute(readOut).text, Optional(recordOf("Song")));
}

TEST_F(MprisPlayerTest, AnErrorReplyIsAnErrorWithItsNameAndText) {
    PlayerProcess player(bus.connection());
    player.setAnswer("error");
    const auto outcome = reader().execute(readOut);
    EXPECT_EQ(outcome.text, std::nullopt);
    EXPECT_THAT(outcome.error,
                Optional(std::string("org.freedesktop.DBus.Error.Failed: as the test says")));
}

TEST_F(MprisPlayerTest, PropertiesTravelTheBusInEveryNumberType) {
    PlayerProcess player(bus.connection());
    auto reads = reader();
    const QVariant lengths[] = {QVariant::fromValue(uchar(200)),
                                QVariant::fromValue(short(200)),
                                QVariant::fromValue(ushort(200)),
                                QVariant::fromValue(200),
                                QVariant::fromValue(200U),
                                QVariant::fromValue(qlonglong(200)),
                                QVariant::fromValue(qulonglong(200)),
                                QVariant::fromValue(200.0)};
    for (const auto& value : lengths) {
        player.setProperties(
            {{QStringLiteral("Metadata"), QVariantMap{{QStringLiteral("mpris:length"), value}}},
             {QStringLiteral("Position"), value}});
        EXPECT_THAT(reads.execute(readOut).text, Optional(std::string("\x1F\x1F\x1F"
                                                                      "0.2\x1F\x1F"
                                                                      "2e-04\x1F")))
            << value.typeName();
    }
}

struct Artist {
    const char* name;
    QVariant value;
    const char* field;

    friend void PrintTo(const Artist& artist, std::ostream* out) { *out << artist.name; }
};

class MprisPlayerArtist : public MprisSession, public testing::WithParamInterface<Artist> {};

TEST_P(MprisPlayerArtist, IsReadFromTheBus) {
    PlayerProcess player(bus.connection());
    player.setTrack({{QStringLiteral("xesam:artist"), GetParam().value}});
    EXPECT_THAT(reader().execute(readOut).text, Optional("\x1F" + std::string(GetParam().field) +
                                                         "\x1F\x1F\x1F\x1F"
                                                         "0\x1F"
                                                         "stopped"));
}

INSTANTIATE_TEST_SUITE_P(
    Types, MprisPlayerArtist,
    testing::Values(Artist{"ListOfTexts",
                           QStringList{QStringLiteral("First"), QStringLiteral("Second")}, "First"},
                    Artist{"Text", QStringLiteral("Only"), "Only"},
                    Artist{"ListOfVariants", QVariantList{QStringLiteral("First"), 2}, "First"},
                    Artist{"ListOfVariantsThatBeginsWithANumber",
                           QVariantList{2, QStringLiteral("Second")}, ""},
                    Artist{"EmptyListOfTexts", QStringList(), ""},
                    Artist{"EmptyListOfVariants", QVariantList(), ""}, Artist{"Number", 7, ""},
                    Artist{"Bytes", QByteArray("bytes"), ""},
                    Artist{"Map", QVariantMap{{QStringLiteral("name"), QStringLiteral("First")}},
                           ""}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

struct Metadata {
    const char* name;
    QVariantMap properties;

    friend void PrintTo(const Metadata& metadata, std::ostream* out) { *out << metadata.name; }
};

class MprisPlayerUnreadable : public MprisSession, public testing::WithParamInterface<Metadata> {};

TEST_P(MprisPlayerUnreadable, GivesSevenEmptyFields) {
    PlayerProcess player(bus.connection());
    player.setProperties(GetParam().properties);
    EXPECT_THAT(reader().execute(readOut).text, Optional(std::string(6, '\x1F')));
}

const auto metadataKey = QStringLiteral("Metadata");

INSTANTIATE_TEST_SUITE_P(
    Metadata, MprisPlayerUnreadable,
    testing::Values(
        Metadata{"Absent", {{QStringLiteral("CanPlay"), true}}},
        Metadata{"Empty", {{metadataKey, QVariantMap()}}},
        Metadata{"Text", {{metadataKey, QStringLiteral("Song")}}},
        Metadata{"Number", {{metadataKey, 7}}},
        Metadata{"List", {{metadataKey, QStringList{QStringLiteral("xesam:title")}}}},
        Metadata{"ListOfMaps",
                 {{metadataKey, QVariantList{QVariantMap{{QStringLiteral("xesam:title"), 1}}}}}},
        Metadata{"FieldsOfWrongTypes",
                 {{metadataKey, QVariantMap{{QStringLiteral("xesam:title"), 7},
                                            {QStringLiteral("xesam:album"), QStringList()},
                                            {QStringLiteral("mpris:length"), QStringLiteral("7")},
                                            {QStringLiteral("mpris:artUrl"), false}}},
                  {QStringLiteral("Position"), true},
                  {QStringLiteral("PlaybackStatus"), 1}}}),
    [](const auto& parameter) { return std::string(parameter.param.name); });

TEST_F(MprisPlayerTest, MetadataInsideAFurtherVariantIsRead) {
    PlayerProcess player(bus.connection());
    player.setProperties(
        {{metadataKey, QVariant::fromValue(QDBusVariant(QVariant(song("Wrapped"))))}});
    EXPECT_THAT(reader().execute(readOut).text, Optional(testing::StartsWith("Wrapped\x1F"
                                                                             "Artist")));
}

TEST_F(MprisPlayerTest, OfATitleOfAMegabyteTheBeginningArrives) {
    PlayerProcess player(bus.connection());
    const std::string title(1 << 20, 'x');
    player.setTrack(song(title.c_str()));
    EXPECT_THAT(reader().execute(readOut).text,
                Optional(recordOf(title.substr(0, longestMprisText))));
}

TEST_F(MprisPlayerTest, WhatIsNoCharacterHarmsTheRecordAlone) {
    PlayerProcess player(bus.connection());
    auto mpris = reader();
    player.setTrack(song("a title with a hole \uFDD0"));
    EXPECT_THAT(mpris.execute(readOut).text, Optional(testing::StartsWith("\x1F"
                                                                          "Artist")))
        << "the library of the bus takes no such text";
    player.setTrack(song("the next title"));
    EXPECT_THAT(mpris.execute(readOut).text, Optional(recordOf("the next title")));
}

} // namespace
} // namespace brellowind::platform
