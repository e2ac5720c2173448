// SPDX-License-Identifier: MIT

#include "platform/linux/MprisReading.h"

#include "foundation/Utf8.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace brellowind::platform {
namespace {

using namespace Qt::StringLiterals;

constexpr auto properties = "a{sv}"_L1;
constexpr auto noTrack = "/org/mpris/MediaPlayer2/TrackList/NoTrack"_L1;
constexpr auto numberTypes = "ynqiuxtd"_L1;
constexpr double microsecondsPerMillisecond = 1e3;
constexpr double microsecondsPerSecond = 1e6;

/// Larger values are unreadable: they would overflow an integer.
constexpr double farthestMicroseconds = 9.2e18;

/// A property, in each representation that is used.
struct Value {
    QString text;
    QString firstText; ///< the text, or the first entry of a list
    QString path;      ///< the text, or an object path
    std::optional<double> microseconds;
};

template <typename Type>
Type take(const QDBusArgument& argument) {
    Type value{};
    argument >> value;
    return value;
}

/// Calls `read` with the signature of a variant's content; nested variants are entered. Content
/// that `read` does not consume is skipped without unpacking it, unlike with `QDBusVariant`.
template <typename Read>
void inVariant(const QDBusArgument& argument, Read read) {
    argument.beginStructure();
    const QString signature = argument.currentSignature();
    if (signature == "v"_L1)
        inVariant(argument, read);
    else
        read(signature);
    argument.endStructure();
}

/// Calls `visit` with each key of an `a{sv}`. Skips values that it does not consume.
template <typename Visit>
void eachEntry(const QDBusArgument& argument, Visit visit) {
    argument.beginMap();
    for (int i = 0; i < mostMprisEntries && !argument.atEnd(); ++i) {
        argument.beginMapEntry();
        visit(take<QString>(argument));
        argument.endMapEntry();
    }
    argument.endMap();
}

/// A number of any integer type, or a double.
std::optional<double> number(const QDBusArgument& argument) {
    const double value = argument.asVariant().toDouble();
    return std::abs(value) < farthestMicroseconds ? std::optional(value) : std::nullopt;
}

Value value(const QDBusArgument& argument);

/// The first entry of a list of texts or variants.
QString firstEntry(const QDBusArgument& argument, bool ofVariants) {
    QString first;
    argument.beginArray();
    if (!argument.atEnd())
        first = ofVariants ? value(argument).text : take<QString>(argument);
    argument.endArray();
    return first;
}

Value value(const QDBusArgument& argument) {
    Value result;
    inVariant(argument, [&](const QString& signature) {
        if (signature == "s"_L1)
            result.text = result.firstText = result.path = take<QString>(argument);
        else if (signature == "o"_L1)
            result.path = take<QDBusObjectPath>(argument).path();
        else if (signature == "as"_L1 || signature == "av"_L1)
            result.firstText = firstEntry(argument, signature == "av"_L1);
        else if (signature.size() == 1 && numberTypes.contains(signature.front()))
            result.microseconds = number(argument);
    });
    return result;
}

struct Properties {
    Value trackId, title, artist, album, length, artUrl, position, status;
};

void readMetadata(const QDBusArgument& argument, Properties& read) {
    const std::pair<QLatin1String, Value&> wanted[] = {
        {"mpris:trackid"_L1, read.trackId}, {"xesam:title"_L1, read.title},
        {"xesam:artist"_L1, read.artist},   {"xesam:album"_L1, read.album},
        {"mpris:length"_L1, read.length},   {"mpris:artUrl"_L1, read.artUrl},
    };
    eachEntry(argument, [&](const QString& key) {
        for (const auto& [name, property] : wanted)
            if (key == name)
                property = value(argument);
    });
}

Properties readProperties(const QDBusArgument& argument) {
    Properties read;
    eachEntry(argument, [&](const QString& key) {
        if (key == "Metadata"_L1)
            inVariant(argument, [&](const QString& signature) {
                if (signature == properties)
                    readMetadata(argument, read);
            });
        else if (key == "Position"_L1)
            read.position = value(argument);
        else if (key == "PlaybackStatus"_L1)
            read.status = value(argument);
    });
    return read;
}

/// `text` in UTF-8, truncated.
std::string limited(const QString& text) {
    // A UTF-16 code unit takes at least one byte, so no more are needed.
    const auto bytes = QStringView(text).left(longestMprisText + 1).toUtf8();
    return std::string(
        utf8::beginning({bytes.data(), static_cast<std::size_t>(bytes.size())}, longestMprisText));
}

/// Rewrites dead cover URLs, which are not found, to those of the image host.
std::optional<std::string> artworkURL(const QString& location) {
    if (location.isEmpty() || location.size() > static_cast<qsizetype>(longestMprisText))
        return std::nullopt;
    std::string url = location.toStdString();
    if (url.size() > longestMprisText)
        return std::nullopt;
    for (const std::string_view dead :
         {"https://open.spotify.com/image/", "http://open.spotify.com/image/"}) {
        if (url.starts_with(dead))
            url.replace(0, dead.size(), "https://i.scdn.co/image/");
    }
    return url;
}

Player::Answer answerOf(const Properties& read) {
    Track track(limited(read.title.text), limited(read.artist.firstText), limited(read.album.text),
                read.length.microseconds.value_or(0) / microsecondsPerMillisecond,
                artworkURL(read.artUrl.text));
    const bool isNamed = !(track.title.empty() && track.artist.empty() && track.album.empty());
    if (!isNamed || read.trackId.path == noTrack)
        return Player::NotRunning();
    return Player::Snapshot{
        .track = std::move(track),
        .isPlaying = read.status.text.compare("playing"_L1, Qt::CaseInsensitive) == 0,
        .positionSec = read.position.microseconds.value_or(0) / microsecondsPerSecond,
    };
}

} // namespace

Player::Answer readMpris(const QDBusMessage& reply) {
    if (reply.signature() != properties)
        return Player::Unreadable();
    return answerOf(readProperties(reply.arguments().constFirst().value<QDBusArgument>()));
}

} // namespace brellowind::platform
