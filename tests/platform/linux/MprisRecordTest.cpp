#include "platform/linux/MprisRecord.h"

#include <gtest/gtest.h>
#include <limits>

namespace brellowind::platform {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

/// The field at `index` of the record of `properties`.
std::string field(const QVariantMap& properties, int index) {
    const auto fields = QString::fromStdString(mprisRecord(properties)).split(QChar(0x1F));
    EXPECT_EQ(fields.size(), 7);
    return fields.value(index).toStdString();
}

std::string field(const char* key, const QVariant& value, int index) {
    return field({{QStringLiteral("Metadata"), QVariantMap{{QLatin1String(key), value}}}}, index);
}

std::string duration(const QVariant& length) {
    return field("mpris:length", length, 3);
}

std::string position(const QVariant& position) {
    return field({{QStringLiteral("Position"), position}}, 5);
}

std::string artwork(const char* location) {
    return field("mpris:artUrl", QString::fromLatin1(location), 4);
}

TEST(MprisRecord, OfNothingIsSevenEmptyFields) {
    EXPECT_EQ(mprisRecord({}), std::string(6, '\x1F'));
}

TEST(MprisRecord, TurnsMicrosecondsIntoMillisecondsOfDuration) {
    EXPECT_EQ(duration(qulonglong(215000000)), "215000");
    EXPECT_EQ(duration(qlonglong(215999999)), "215999.999");
    EXPECT_EQ(duration(1500.5), "1.5005");
    EXPECT_EQ(duration(0), "0");
}

TEST(MprisRecord, TurnsMicrosecondsIntoSecondsOfPosition) {
    EXPECT_EQ(position(qlonglong(12500000)), "12.5");
    EXPECT_EQ(position(1.0e6), "1");
}

TEST(MprisRecord, KeepsNegativeNumbers) {
    EXPECT_EQ(duration(-1000), "-1");
    EXPECT_EQ(duration(short(-1000)), "-1");
    EXPECT_EQ(position(qlonglong(-500000)), "-0.5");
}

TEST(MprisRecord, LeavesNumbersOutThatNoTrackCanHave) {
    for (const QVariant& value :
         {QVariant(infinity), QVariant(-infinity), QVariant(std::nan("")), QVariant(1e300),
          QVariant(-1e300), QVariant(std::numeric_limits<qulonglong>::max()),
          QVariant(std::numeric_limits<qlonglong>::max()),
          QVariant(std::numeric_limits<qlonglong>::min())}) {
        EXPECT_EQ(duration(value), "") << value.toDouble();
        EXPECT_EQ(position(value), "") << value.toDouble();
    }
}

TEST(MprisRecord, LeavesNumbersOutThatAreOfAnotherType) {
    for (const QVariant& value : {QVariant(true), QVariant(QStringLiteral("7")), QVariant(),
                                  QVariant(QStringList{QStringLiteral("7")})}) {
        EXPECT_EQ(duration(value), "") << value.typeName();
        EXPECT_EQ(position(value), "") << value.typeName();
    }
}

TEST(MprisRecord, HugeButPossibleNumbersStayReadable) {
    EXPECT_DOUBLE_EQ(std::stod(duration(9e18)), 9e15);
    EXPECT_DOUBLE_EQ(std::stod(position(9e18)), 9e12);
}

TEST(MprisRecord, WritesTheStateInLowerCase) {
    const auto state = [](const char* status) {
        return field({{QStringLiteral("PlaybackStatus"), QString::fromUtf8(status)}}, 6);
    };
    EXPECT_EQ(state("Playing"), "playing");
    EXPECT_EQ(state("PAUSED"), "paused");
    EXPECT_EQ(state("stopped"), "stopped");
}

TEST(MprisRecord, TakesCoversFromTheImageHostThatAnswers) {
    EXPECT_EQ(artwork("https://open.spotify.com/image/ab67?x=1"),
              "https://i.scdn.co/image/ab67?x=1");
    EXPECT_EQ(artwork("http://open.spotify.com/image/ab67"), "https://i.scdn.co/image/ab67");
}

TEST(MprisRecord, LeavesOtherCoverLocationsAlone) {
    for (const char* location :
         {"", "https://i.scdn.co/image/ab67", "https://open.spotify.com/images/ab67",
          "https://open.spotify.com.example/image/ab67",
          "https://open.spotify.com/track/image/ab67", "file:///tmp/cover.png", "not a location",
          "https://other.example/?u=https://open.spotify.com/image/ab67"})
        EXPECT_EQ(artwork(location), location);
}

TEST(MprisRecord, TakesTextsAsTheyAre) {
    const auto odd = QStringLiteral(" \ttwo\nlines\r\u0007\u0085\u200F%s \\ \"x\" ");
    EXPECT_EQ(field("xesam:title", odd, 0), odd.toStdString());
    EXPECT_EQ(field("xesam:artist", QStringList{odd}, 1), odd.toStdString());
    EXPECT_EQ(field("xesam:album", odd, 2), odd.toStdString());
}

TEST(MprisRecord, NoTextHasASeparatorThatWouldMakeANumberOfIt) {
    const auto sly = QStringLiteral("\u001Fa\u001Fb\u001F1e300\u001F");
    EXPECT_EQ(field("xesam:title", sly, 0), "ab1e300");
    EXPECT_EQ(field("xesam:artist", QStringList{sly}, 1), "ab1e300");
    EXPECT_EQ(field("xesam:album", sly, 2), "ab1e300");
    EXPECT_EQ(field("mpris:artUrl", sly, 4), "ab1e300");
    EXPECT_EQ(field({{QStringLiteral("PlaybackStatus"), sly}}, 6), "ab1e300");
}

TEST(MprisRecord, TakesTheFirstArtist) {
    EXPECT_EQ(field("xesam:artist", QStringList{QStringLiteral("A"), QStringLiteral("B")}, 1), "A");
    EXPECT_EQ(field("xesam:artist", QStringList{QString(), QStringLiteral("B")}, 1), "");
    EXPECT_EQ(field("xesam:artist", QStringLiteral("A, B"), 1), "A, B");
}

} // namespace
} // namespace brellowind::platform
