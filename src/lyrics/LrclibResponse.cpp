// SPDX-License-Identifier: MIT

#include "lyrics/LrclibResponse.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace brellowind {
namespace {

using nlohmann::json;

/// `document` with numbers that a double can hold, since the parser refuses others. Their values
/// are not used. Long runs of digits are cut and the digits of exponents become 0, so that what is
/// JSON stays JSON and nothing else becomes it.
std::string withSmallNumbers(std::string_view document) {
    constexpr int longestRun = 18;
    std::string small;
    small.reserve(document.size());
    bool inString = false;
    bool isEscaped = false;
    bool inExponent = false;
    int digits = 0;
    for (const char character : document) {
        const bool isDigit = !inString && character >= '0' && character <= '9';
        digits = isDigit ? digits + 1 : 0;
        if (digits <= longestRun)
            small += isDigit && inExponent ? '0' : character;
        if (character == '"' && !isEscaped)
            inString = !inString;
        isEscaped = inString && character == '\\' && !isEscaped;
        inExponent =
            !inString && (character == 'e' || character == 'E' ||
                          (inExponent && (isDigit || character == '+' || character == '-')));
    }
    return small;
}

/// SAX handler that stores the two texts. Returning false stops the parser.
class Reader final : public json::json_sax_t {
public:
    std::optional<LrclibResponse> response() {
        if (!synced_ || !plain_)
            return std::nullopt;
        return LrclibResponse{std::move(*synced_), std::move(*plain_)};
    }

    bool key(std::string& key) override {
        if (depth_ == 1)
            text_ = key == "syncedLyrics" ? &synced_ : key == "plainLyrics" ? &plain_ : nullptr;
        return true;
    }

    bool null() override { return set(""); }
    bool string(std::string& value) override { return set(std::move(value)); }

    bool boolean(bool) override { return set(noText); }
    bool number_integer(number_integer_t) override { return set(noText); }
    bool number_unsigned(number_unsigned_t) override { return set(noText); }
    bool number_float(double, const std::string&) override { return set(noText); }
    bool binary(binary_t&) override { return set(noText); }

    bool start_object(std::size_t) override { return (depth_ == 0 || set(noText)) && open(); }
    bool start_array(std::size_t) override { return set(noText) && open(); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool parse_error(std::size_t, const std::string&, const json::exception&) override {
        return false;
    }

private:
    using Text = std::optional<std::string>; ///< absent: wrong type

    static constexpr auto noText = std::nullopt;

    /// Handles the value of the last key. Rejects values outside an object.
    bool set(Text value) {
        if (depth_ == 1 && text_)
            *text_ = std::move(value);
        return depth_ > 0;
    }

    bool open() {
        ++depth_;
        return true;
    }

    bool close() {
        --depth_;
        return true;
    }

    Text synced_{""};
    Text plain_{""};
    Text* text_ = nullptr; ///< target of the outermost object's last key
    int depth_ = 0;
};

} // namespace

std::optional<LrclibResponse> LrclibResponse::decode(std::string_view body) {
    if (body.find('\0') != body.npos) // the parser would stop there
        return std::nullopt;
    Reader reader;
    if (!json::sax_parse(withSmallNumbers(body), &reader))
        return std::nullopt;
    return reader.response();
}

} // namespace brellowind
