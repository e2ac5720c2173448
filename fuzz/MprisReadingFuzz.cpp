// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "foundation/Utf8.h"
#include "lyrics/LrclibAPI.h"
#include "platform/linux/MessageLine.h"
#include "platform/linux/MprisReading.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <algorithm>
#include <bit>
#include <cmath>
#include <fuzzer/FuzzedDataProvider.h>
#include <optional>

// Player properties of arbitrary types and values in a D-Bus message: the reading, and the request
// for its lyrics.

namespace brellowind::fuzz {
namespace {

constexpr int deepest = 8;
constexpr std::size_t longest = 64;
constexpr int repetitions = 200; ///< of a text that begins with the repetition sign
constexpr QChar repeatSign = u'*';

/// A value, and its text, also within nested variants; empty if it is not a text.
struct Value {
    QVariant value;
    QString text;
};

/// The properties encoded in `input`, and the title among them.
class Player {
public:
    explicit Player(FuzzedDataProvider& input) : input_(input) {}

    QVariant properties() {
        auto argument = beginMap();
        if (input_.ConsumeBool())
            append(argument, "Metadata", metadata(0));
        for (const char* name : {"Position", "PlaybackStatus", "Rate"})
            if (input_.ConsumeBool())
                append(argument, name, variant(0).value);
        argument.endMap();
        return QVariant::fromValue(argument);
    }

    /// Empty if there is no text.
    std::string title() const { return title_.toStdString(); }

    bool hasTrackId() const { return hasTrackId_; }

private:
    static QDBusArgument beginMap() {
        QDBusArgument map;
        map.beginMap(QMetaType::fromType<QString>(), QMetaType::fromType<QDBusVariant>());
        return map;
    }

    static void append(QDBusArgument& map, const char* key, const QVariant& value) {
        map.beginMapEntry();
        map << QString::fromLatin1(key) << QDBusVariant(value);
        map.endMapEntry();
    }

    static QVariant wrapped(const QVariant& value) {
        return QVariant::fromValue(QDBusVariant(value));
    }

    QString text() {
        auto bytes = input_.ConsumeRandomLengthString(longest);
        bytes.resize(std::min(bytes.find('\0'), bytes.size()));
        const auto text = QString::fromStdString(bytes);
        return text.startsWith(repeatSign) ? text.repeated(repetitions) : text;
    }

    template <typename Number>
    QVariant number() {
        return QVariant::fromValue(input_.ConsumeIntegral<Number>());
    }

    /// A map of metadata, or another value instead.
    QVariant metadata(int depth) {
        if (depth < deepest && input_.ConsumeBool())
            return wrapped(metadata(depth + 1));
        if (input_.ConsumeIntegralInRange(0, 7) == 0)
            return text();
        auto argument = beginMap();
        for (int i = 0; i < platform::mostMprisEntries && input_.ConsumeBool(); ++i) {
            const char* key =
                input_.PickValueInArray({"xesam:title", "xesam:artist", "xesam:album",
                                         "mpris:length", "mpris:artUrl", "mpris:trackid"});
            const auto value = variant(depth + 1);
            append(argument, key, value.value);
            if (std::string_view(key) == "xesam:title")
                title_ = value.text;
            hasTrackId_ = hasTrackId_ || std::string_view(key) == "mpris:trackid";
        }
        argument.endMap();
        return QVariant::fromValue(argument);
    }

    /// A value of any type.
    Value variant(int depth) {
        static constexpr const char* types[] = {"s", "y",  "b",     "n",  "q",   "i",
                                                "u", "x",  "t",     "d",  "o",   "as",
                                                "v", "av", "a{sv}", "ay", "(sv)"};
        const std::string_view type = depth < deepest ? input_.PickValueInArray(types) : "s";
        if (type == "s") {
            const QString content = text();
            return {content, content};
        }
        if (type == "v") {
            const auto inner = variant(depth + 1);
            return {wrapped(inner.value), inner.text};
        }
        return {type.size() == 1 ? basic(type.front()) : container(type, depth), {}};
    }

    QVariant container(std::string_view type, int depth) {
        if (type == "ay")
            return QByteArray::fromStdString(input_.ConsumeRandomLengthString(longest));
        if (type == "as") {
            QStringList list;
            while (input_.ConsumeBool())
                list.append(text());
            return list;
        }
        if (type == "av") {
            QVariantList list;
            while (input_.ConsumeBool())
                list.append(variant(depth + 1).value);
            return list;
        }
        QDBusArgument argument = type == "a{sv}" ? beginMap() : QDBusArgument();
        if (type == "a{sv}") {
            while (input_.ConsumeBool())
                append(argument, "xesam:title", variant(depth + 1).value);
            argument.endMap();
        } else {
            argument.beginStructure();
            argument << text() << QDBusVariant(variant(depth + 1).value);
            argument.endStructure();
        }
        return QVariant::fromValue(argument);
    }

    QVariant basic(char type) {
        switch (type) {
        case 'y':
            return number<uchar>();
        case 'b':
            return input_.ConsumeBool();
        case 'n':
            return number<short>();
        case 'q':
            return number<ushort>();
        case 'i':
            return number<int>();
        case 'u':
            return number<uint>();
        case 'x':
            return number<qlonglong>();
        case 't':
            return number<qulonglong>();
        case 'd': // including infinity and NaN
            return std::bit_cast<double>(input_.ConsumeIntegral<std::uint64_t>());
        default:
            return QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/mpris/track")));
        }
    }

    FuzzedDataProvider& input_;
    QString title_;
    bool hasTrackId_ = false;
};

platform::Player::Answer answerTo(const QVariant& properties) {
    static int argc = 1;
    static char name[] = "fuzzer";
    static char* argv[] = {name, nullptr};
    static QCoreApplication application(argc, argv);
    static test::MessageLine line;
    return platform::readMpris(line.deliver({properties}));
}

/// Whether `said` is a valid reading of a player's `text`.
bool isBeginning(const std::string& said, const std::string& text) {
    constexpr std::size_t longestCharacter = 4;
    if (text.size() <= platform::longestMprisText)
        return said == text;
    return said.size() <= platform::longestMprisText && text.starts_with(said) &&
           said.size() + longestCharacter > platform::longestMprisText;
}

void check(const platform::Player::Snapshot& reading, const Player& player) {
    const Track& track = reading.track;
    require(isBeginning(track.title, player.title()),
            "the title is the player's, or its beginning");
    require(utf8::isValid(track.artist) && utf8::isValid(track.album), "texts are UTF-8");
    require(!track.artworkURL || !track.artworkURL->empty(), "an empty cover location is absent");
    require(std::isfinite(reading.positionSec), "the position is a number");
    require(LrclibAPI::requestURL("https://lyrics.example", track).has_value(),
            "lyrics can be asked for, whatever a player says");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    FuzzedDataProvider input(data, size);
    fuzz::Player player(input);
    const auto answer = fuzz::answerTo(player.properties());
    if (const auto* reading = std::get_if<platform::Player::Snapshot>(&answer))
        fuzz::check(*reading, player);
    else
        fuzz::require(std::holds_alternative<platform::Player::NotRunning>(answer) &&
                          (player.title().empty() || player.hasTrackId()),
                      "a player with a title runs");
    return 0;
}
