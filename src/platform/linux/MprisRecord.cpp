#include "platform/linux/MprisRecord.h"

#include <QDBusArgument>
#include <QDBusVariant>
#include <QStringList>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace brellowind::platform {
namespace {

constexpr char fieldSeparator = '\x1F';
constexpr double microsecondsPerMillisecond = 1e3;
constexpr double microsecondsPerSecond = 1e6;

/// No real track or position comes near it; what lies beyond is as good as unreadable.
constexpr double farthestMicroseconds = 9.2e18;

QVariant unwrapped(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<QDBusVariant>())
        return unwrapped(value.value<QDBusVariant>().variant());
    return value;
}

QVariantMap map(const QVariant& value) {
    const QVariant plain = unwrapped(value);
    if (plain.metaType() == QMetaType::fromType<QVariantMap>())
        return plain.toMap();
    if (plain.metaType() != QMetaType::fromType<QDBusArgument>())
        return {};
    const auto argument = plain.value<QDBusArgument>();
    return argument.currentSignature() == QLatin1String("a{sv}") ? qdbus_cast<QVariantMap>(argument)
                                                                 : QVariantMap();
}

QString text(const QVariant& value) {
    const QVariant plain = unwrapped(value);
    return plain.metaType() == QMetaType::fromType<QString>() ? plain.toString() : QString();
}

QString firstText(const QVariant& value) {
    const QVariant plain = unwrapped(value);
    if (plain.metaType() == QMetaType::fromType<QStringList>())
        return plain.toStringList().value(0);
    if (plain.metaType() == QMetaType::fromType<QVariantList>())
        return text(plain.toList().value(0));
    if (plain.metaType() == QMetaType::fromType<QDBusArgument>()) {
        const auto argument = plain.value<QDBusArgument>();
        if (argument.currentSignature() == QLatin1String("av"))
            return text(qdbus_cast<QVariantList>(argument).value(0));
        return {};
    }
    return text(plain);
}

std::optional<double> microseconds(const QVariant& value) {
    const QVariant plain = unwrapped(value);
    switch (plain.typeId()) {
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
        break;
    default:
        return std::nullopt;
    }
    const double number = plain.toDouble();
    if (!(std::abs(number) < farthestMicroseconds))
        return std::nullopt;
    return number;
}

std::string numberField(std::optional<double> microseconds, double unit) {
    if (!microseconds)
        return {};
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), *microseconds / unit);
    return {digits.data(), end.ptr};
}

/// A text in its field. It loses separators, or what follows one would count as another field, and
/// what a player writes into a title as a number.
std::string textField(QString text) {
    return text.remove(QLatin1Char(fieldSeparator)).toStdString();
}

/// Cover locations of this form answer "not found" where the image host answers with the image.
std::string artworkField(QString location) {
    for (const auto& dead : {QStringLiteral("https://open.spotify.com/image/"),
                             QStringLiteral("http://open.spotify.com/image/")}) {
        if (location.startsWith(dead))
            location.replace(0, dead.size(), QStringLiteral("https://i.scdn.co/image/"));
    }
    return textField(location);
}

} // namespace

std::string mprisRecord(const QVariantMap& properties) {
    const QVariantMap metadata = map(properties.value(QStringLiteral("Metadata")));
    const auto of = [&metadata](const char* key) { return metadata.value(QLatin1String(key)); };
    const std::string fields[] = {
        textField(text(of("xesam:title"))),
        textField(firstText(of("xesam:artist"))),
        textField(text(of("xesam:album"))),
        numberField(microseconds(of("mpris:length")), microsecondsPerMillisecond),
        artworkField(text(of("mpris:artUrl"))),
        numberField(microseconds(properties.value(QStringLiteral("Position"))),
                    microsecondsPerSecond),
        textField(text(properties.value(QStringLiteral("PlaybackStatus"))).toLower()),
    };
    std::string record;
    for (const auto& field : fields) {
        if (&field != &fields[0])
            record += fieldSeparator;
        record += field;
    }
    return record;
}

} // namespace brellowind::platform
