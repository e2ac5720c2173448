#include "Fuzz.h"
#include "foundation/Utf8.h"
#include "lyrics/LrclibAPI.h"
#include "platform/linux/MprisRecord.h"
#include "playback/SpotifyBridge.h"
#include "support/TestMachine.h"

#include <QDBusVariant>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <fuzzer/FuzzedDataProvider.h>

// A player's properties of any types and values, and the way on from there: the record, the reading
// made of it, the lyrics asked for.

namespace brellowind::fuzz {
namespace {

constexpr int deepest = 4;
constexpr std::size_t longest = 64;

QString anyText(FuzzedDataProvider& input) {
    const auto bytes = input.ConsumeRandomLengthString(longest);
    if (input.ConsumeBool())
        return QString::fromStdString(bytes);
    QString units; // not always characters
    for (const char byte : bytes)
        units += QChar(static_cast<char16_t>(0xD7F0 + static_cast<unsigned char>(byte)));
    return units;
}

QVariant anyValue(FuzzedDataProvider& input, int depth);

QVariantMap anyMap(FuzzedDataProvider& input, int depth) {
    QVariantMap map;
    for (const char* key : {"xesam:title", "xesam:artist", "xesam:album", "mpris:length",
                            "mpris:artUrl", "mpris:trackid"})
        if (input.ConsumeBool())
            map.insert(QLatin1String(key), anyValue(input, depth));
    return map;
}

QVariant anyNumber(FuzzedDataProvider& input) {
    switch (input.ConsumeIntegralInRange(0, 8)) {
    case 0:
        return QVariant::fromValue(input.ConsumeIntegral<uchar>());
    case 1:
        return QVariant::fromValue(input.ConsumeIntegral<short>());
    case 2:
        return QVariant::fromValue(input.ConsumeIntegral<ushort>());
    case 3:
        return input.ConsumeIntegral<int>();
    case 4:
        return input.ConsumeIntegral<uint>();
    case 5:
        return input.ConsumeIntegral<qlonglong>();
    case 6:
        return input.ConsumeIntegral<qulonglong>();
    case 7:
        return input.ConsumeFloatingPoint<double>();
    default: // infinite and what is not a number among them
        const auto bits = input.ConsumeIntegral<std::uint64_t>();
        return std::bit_cast<double>(bits);
    }
}

QVariant anyValue(FuzzedDataProvider& input, int depth) {
    switch (input.ConsumeIntegralInRange(0, depth < deepest ? 8 : 4)) {
    case 0:
        return anyText(input);
    case 1:
        return anyNumber(input);
    case 2:
        return input.ConsumeBool();
    case 3:
        return QByteArray::fromStdString(input.ConsumeRandomLengthString(longest));
    case 4: {
        QStringList texts;
        while (input.ConsumeBool())
            texts += anyText(input);
        return texts;
    }
    case 5:
        return QVariant::fromValue(QDBusVariant(anyValue(input, depth + 1)));
    case 6: {
        QVariantList list;
        while (input.ConsumeBool())
            list += anyValue(input, depth + 1);
        return list;
    }
    case 7:
        return anyMap(input, depth + 1);
    default:
        return {};
    }
}

QVariantMap anyProperties(FuzzedDataProvider& input) {
    QVariantMap properties;
    if (input.ConsumeBool())
        properties.insert(QStringLiteral("Metadata"), anyMap(input, 0));
    else
        properties.insert(QStringLiteral("Metadata"), anyValue(input, 0));
    properties.insert(QStringLiteral("Position"), anyValue(input, 0));
    properties.insert(QStringLiteral("PlaybackStatus"), anyValue(input, 0));
    return properties;
}

SpotifyBridge::Snapshot readingOf(const std::string& record) {
    static test::TestMachine machine;
    machine.scripting.executed.clear();
    machine.scripting.answer = [&record](const auto&) {
        return platform::ScriptOutcome{.text = record, .error = std::nullopt};
    };
    const auto snapshot = SpotifyBridge::snapshot();
    require(snapshot.has_value(), "a record is a reading");
    return *snapshot;
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    FuzzedDataProvider input(data, size);
    const auto record = platform::mprisRecord(fuzz::anyProperties(input));
    fuzz::require(utf8::isValid(record), "a record is UTF-8");
    fuzz::require(std::ranges::count(record, SpotifyBridge::fieldSeparator) == 6,
                  "a record has seven fields");
    const auto reading = fuzz::readingOf(record);
    fuzz::require(std::isfinite(reading.positionSec), "the position is a number");
    fuzz::require(LrclibAPI::requestURL("https://lyrics.example", reading.track).has_value(),
                  "lyrics can be asked for, whatever a player says");
    return 0;
}
