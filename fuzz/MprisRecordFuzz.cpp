#include "Fuzz.h"
#include "foundation/Utf8.h"
#include "lyrics/LrclibAPI.h"
#include "platform/linux/LocalMessage.h"
#include "platform/linux/MprisRecord.h"
#include "playback/SpotifyBridge.h"
#include "support/TestMachine.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <fuzzer/FuzzedDataProvider.h>

// A player's properties of any types and values, and the way on from there: the record, the reading
// made of it, the lyrics asked for.

namespace brellowind::fuzz {
namespace {

constexpr int deepest = 8;
constexpr std::size_t longest = 64;
constexpr std::size_t repetitions = 200; ///< of a text that begins with the sign for it
constexpr char repeatSign = '*';

std::string repeated(const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i < repetitions; ++i)
        all += text;
    return all;
}

/// Fills a bus message with what `input` says, and knows which title it has written.
class Player {
public:
    explicit Player(FuzzedDataProvider& input) : input_(input) {}

    sd_bus_message* properties() {
        open(SD_BUS_TYPE_ARRAY, "{sv}");
        if (input_.ConsumeBool())
            entry("Metadata", [this] { title_ = metadata(0); });
        for (const char* name : {"Position", "PlaybackStatus", "Rate"})
            if (input_.ConsumeBool())
                entry(name, [this] { variant(0); });
        close();
        return message_.sealed();
    }

    /// Empty when there is none that is a text.
    const std::string& title() const { return title_; }

private:
    void open(char kind, const char* contents) {
        require(sd_bus_message_open_container(message_.get(), kind, contents) >= 0, "it opens");
    }

    void close() { require(sd_bus_message_close_container(message_.get()) >= 0, "it closes"); }

    template <typename Write>
    void entry(const char* key, Write write) {
        open(SD_BUS_TYPE_DICT_ENTRY, "sv");
        basic(SD_BUS_TYPE_STRING, key);
        write();
        close();
    }

    void basic(char type, const void* value) {
        require(sd_bus_message_append_basic(message_.get(), type, value) >= 0, "it is appended");
    }

    std::string text() {
        auto text = input_.ConsumeRandomLengthString(longest);
        text.resize(std::min(text.find('\0'), text.size()));
        if (text.starts_with(repeatSign))
            text = repeated(text);
        const auto append = [this](const char* what) {
            return sd_bus_message_append_basic(message_.get(), SD_BUS_TYPE_STRING, what) >= 0;
        };
        if (append(text.c_str()))
            return text;
        text.clear(); // no bus carries it: it is no UTF-8, or has what is no character
        require(append(text.c_str()), "it is appended");
        return text;
    }

    template <typename Number>
    void number(char type) {
        const auto value = input_.ConsumeIntegral<Number>();
        basic(type, &value);
    }

    /// A map of metadata in a variant, or something else there. The title that is in it.
    std::string metadata(int depth) {
        if (depth < deepest && input_.ConsumeBool()) {
            open(SD_BUS_TYPE_VARIANT, "v");
            auto title = metadata(depth + 1);
            close();
            return title;
        }
        if (input_.ConsumeIntegralInRange(0, 7) == 0) {
            open(SD_BUS_TYPE_VARIANT, "s");
            text();
            close();
            return {};
        }
        open(SD_BUS_TYPE_VARIANT, "a{sv}");
        auto title = map(depth + 1);
        close();
        return title;
    }

    std::string map(int depth) {
        std::string title;
        open(SD_BUS_TYPE_ARRAY, "{sv}");
        while (input_.ConsumeBool()) {
            const char* key = input_.PickValueInArray({"xesam:title", "xesam:artist", "xesam:album",
                                                       "mpris:length", "mpris:artUrl", "other"});
            entry(key, [&] {
                auto written = variant(depth);
                if (std::string_view(key) == "xesam:title")
                    title = std::move(written);
            });
        }
        close();
        return title;
    }

    /// A value of any type. The text that it is, under however many variants; empty for all others.
    std::string variant(int depth) {
        static constexpr const char* types[] = {"s", "y",  "b",     "n",  "q",   "i",
                                                "u", "x",  "t",     "d",  "o",   "as",
                                                "v", "av", "a{sv}", "ay", "(sv)"};
        const char* type = input_.PickValueInArray(types);
        if (depth >= deepest)
            type = "s";
        open(SD_BUS_TYPE_VARIANT, type);
        auto text = value(type, depth);
        close();
        return text;
    }

    std::string value(std::string_view type, int depth) {
        if (type == "s")
            return text();
        if (type == "v")
            return variant(depth + 1);
        if (type == "as" || type == "av" || type == "ay") {
            open(SD_BUS_TYPE_ARRAY, type.data() + 1);
            while (input_.ConsumeBool())
                value(type.substr(1), depth + 1);
            close();
        } else if (type == "a{sv}") {
            map(depth + 1);
        } else if (type == "(sv)") {
            open(SD_BUS_TYPE_STRUCT, "sv");
            text();
            variant(depth + 1);
            close();
        } else {
            basicValue(type.front());
        }
        return {};
    }

    void basicValue(char type) {
        switch (type) {
        case SD_BUS_TYPE_BYTE:
            return number<std::uint8_t>(type);
        case SD_BUS_TYPE_INT16:
            return number<std::int16_t>(type);
        case SD_BUS_TYPE_UINT16:
            return number<std::uint16_t>(type);
        case SD_BUS_TYPE_INT32:
            return number<std::int32_t>(type);
        case SD_BUS_TYPE_UINT32:
            return number<std::uint32_t>(type);
        case SD_BUS_TYPE_INT64:
            return number<std::int64_t>(type);
        case SD_BUS_TYPE_UINT64:
            return number<std::uint64_t>(type);
        case SD_BUS_TYPE_BOOLEAN: {
            const int truth = input_.ConsumeBool();
            return basic(type, &truth);
        }
        case SD_BUS_TYPE_DOUBLE: { // infinite and what is no number among them
            const auto value = std::bit_cast<double>(input_.ConsumeIntegral<std::uint64_t>());
            return basic(type, &value);
        }
        default:
            return basic(SD_BUS_TYPE_OBJECT_PATH, "/org/mpris/track");
        }
    }

    FuzzedDataProvider& input_;
    test::LocalMessage message_;
    std::string title_;
};

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

std::string withoutSeparators(std::string text) {
    std::erase(text, SpotifyBridge::fieldSeparator);
    return text;
}

/// Whether a record may say `said` where a player says `text`.
bool isBeginning(const std::string& said, const std::string& text) {
    constexpr std::size_t longestCharacter = 4;
    if (text.size() <= platform::longestMprisText)
        return said == withoutSeparators(text);
    return said.size() <= platform::longestMprisText && withoutSeparators(text).starts_with(said) &&
           (text.find(SpotifyBridge::fieldSeparator) != std::string::npos ||
            said.size() + longestCharacter > platform::longestMprisText);
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    FuzzedDataProvider input(data, size);
    fuzz::Player player(input);
    const auto record = platform::mprisRecord(player.properties());
    fuzz::require(utf8::isValid(record), "a record is UTF-8");
    fuzz::require(std::ranges::count(record, SpotifyBridge::fieldSeparator) == 6,
                  "a record has seven fields");
    const auto reading = fuzz::readingOf(record);
    fuzz::require(fuzz::isBeginning(reading.track.title, player.title()),
                  "the title is the player's, or its beginning");
    fuzz::require(std::isfinite(reading.positionSec), "the position is a number");
    fuzz::require(LrclibAPI::requestURL("https://lyrics.example", reading.track).has_value(),
                  "lyrics can be asked for, whatever a player says");
    return 0;
}
