#include "platform/linux/MprisRecord.h"

#include "foundation/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string_view>

namespace brellowind::platform {
namespace {

constexpr char fieldSeparator = '\x1F';
constexpr double microsecondsPerMillisecond = 1e3;
constexpr double microsecondsPerSecond = 1e6;

/// No real track or position comes near it; what lies beyond is as good as unreadable.
constexpr double farthestMicroseconds = 9.2e18;

/// What one property says, as far as anybody asks; its texts are the message's.
struct Value {
    std::string_view text;
    std::string_view firstText; ///< the text, or the first entry of a list
    std::optional<double> microseconds;
};

/// Calls `read` with the type of what a variant holds, under however many variants. What `read`
/// does not take is passed over.
template <typename Read>
void inVariant(sd_bus_message* message, Read read) {
    const char* type = nullptr;
    if (sd_bus_message_peek_type(message, nullptr, &type) <= 0 ||
        sd_bus_message_enter_container(message, SD_BUS_TYPE_VARIANT, type) <= 0)
        return;
    if (std::string_view(type) == "v")
        inVariant(message, read);
    else
        read(type);
    if (sd_bus_message_at_end(message, 0) == 0)
        sd_bus_message_skip(message, type);
    sd_bus_message_exit_container(message);
}

/// Calls `visit` with each key of an `a{sv}`; what it does not read of the value is passed over.
template <typename Visit>
void eachEntry(sd_bus_message* message, Visit visit) {
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, "{sv}") < 0)
        return;
    while (sd_bus_message_enter_container(message, SD_BUS_TYPE_DICT_ENTRY, "sv") > 0) {
        const char* key = nullptr;
        if (sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &key) > 0)
            visit(std::string_view(key));
        if (sd_bus_message_at_end(message, 0) == 0)
            sd_bus_message_skip(message, "v");
        sd_bus_message_exit_container(message);
    }
    sd_bus_message_exit_container(message);
}

template <typename Number>
std::optional<double> number(sd_bus_message* message, char type) {
    Number value{};
    if (sd_bus_message_read_basic(message, type, &value) <= 0)
        return std::nullopt;
    const auto asDouble = static_cast<double>(value);
    if (!(std::abs(asDouble) < farthestMicroseconds))
        return std::nullopt;
    return asDouble;
}

std::optional<double> anyNumber(sd_bus_message* message, char type) {
    switch (type) {
    case SD_BUS_TYPE_BYTE:
        return number<std::uint8_t>(message, type);
    case SD_BUS_TYPE_INT16:
        return number<std::int16_t>(message, type);
    case SD_BUS_TYPE_UINT16:
        return number<std::uint16_t>(message, type);
    case SD_BUS_TYPE_INT32:
        return number<std::int32_t>(message, type);
    case SD_BUS_TYPE_UINT32:
        return number<std::uint32_t>(message, type);
    case SD_BUS_TYPE_INT64:
        return number<std::int64_t>(message, type);
    case SD_BUS_TYPE_UINT64:
        return number<std::uint64_t>(message, type);
    case SD_BUS_TYPE_DOUBLE:
        return number<double>(message, type);
    default:
        return std::nullopt;
    }
}

std::string_view text(sd_bus_message* message) {
    const char* read = nullptr;
    return sd_bus_message_read_basic(message, SD_BUS_TYPE_STRING, &read) > 0 ? read : "";
}

Value value(sd_bus_message* message);

/// Of a list of texts or variants.
std::string_view firstEntry(sd_bus_message* message, const char* entryType) {
    if (sd_bus_message_enter_container(message, SD_BUS_TYPE_ARRAY, entryType) < 0)
        return {};
    std::string_view first;
    if (sd_bus_message_at_end(message, 0) == 0)
        first = *entryType == SD_BUS_TYPE_VARIANT ? value(message).text : text(message);
    while (sd_bus_message_skip(message, entryType) > 0) {
    }
    sd_bus_message_exit_container(message);
    return first;
}

Value value(sd_bus_message* message) {
    Value result;
    inVariant(message, [&](std::string_view type) {
        if (type == "s")
            result.text = result.firstText = text(message);
        else if (type == "as" || type == "av")
            result.firstText = firstEntry(message, type == "as" ? "s" : "v");
        else if (type.size() == 1)
            result.microseconds = anyNumber(message, type.front());
    });
    return result;
}

struct Properties {
    Value title, artist, album, length, artUrl, position, status;
};

void readMetadata(sd_bus_message* message, Properties& properties) {
    eachEntry(message, [&](std::string_view key) {
        if (key == "xesam:title")
            properties.title = value(message);
        else if (key == "xesam:artist")
            properties.artist = value(message);
        else if (key == "xesam:album")
            properties.album = value(message);
        else if (key == "mpris:length")
            properties.length = value(message);
        else if (key == "mpris:artUrl")
            properties.artUrl = value(message);
    });
}

Properties read(sd_bus_message* message) {
    Properties properties;
    eachEntry(message, [&](std::string_view key) {
        if (key == "Metadata")
            inVariant(message, [&](std::string_view type) {
                if (type == "a{sv}")
                    readMetadata(message, properties);
            });
        else if (key == "Position")
            properties.position = value(message);
        else if (key == "PlaybackStatus")
            properties.status = value(message);
    });
    return properties;
}

std::string numberField(std::optional<double> microseconds, double unit) {
    if (!microseconds)
        return {};
    std::array<char, 32> digits{};
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), *microseconds / unit);
    return {digits.data(), end.ptr};
}

/// A text in its field. It loses what is too long, and separators, or what follows one would count
/// as another field, and what a player writes into a title as a number.
std::string textField(std::string_view text) {
    std::string field(utf8::beginning(text, longestMprisText));
    std::erase(field, fieldSeparator);
    return field;
}

/// Cover locations of this form answer "not found" where the image host answers with the image.
std::string artworkField(std::string_view location) {
    if (location.size() > longestMprisText)
        return {};
    std::string field = textField(location);
    for (const std::string_view dead :
         {"https://open.spotify.com/image/", "http://open.spotify.com/image/"}) {
        if (field.starts_with(dead))
            field.replace(0, dead.size(), "https://i.scdn.co/image/");
    }
    return field;
}

std::string lowerCase(std::string field) {
    std::ranges::transform(field, field.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return field;
}

} // namespace

std::string mprisRecord(sd_bus_message* message) {
    const Properties properties = read(message);
    const std::string fields[] = {
        textField(properties.title.text),
        textField(properties.artist.firstText),
        textField(properties.album.text),
        numberField(properties.length.microseconds, microsecondsPerMillisecond),
        artworkField(properties.artUrl.text),
        numberField(properties.position.microseconds, microsecondsPerSecond),
        lowerCase(textField(properties.status.text)),
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
