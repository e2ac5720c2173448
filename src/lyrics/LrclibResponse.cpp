#include "lyrics/LrclibResponse.h"

#include <map>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

namespace brellowind {
namespace {

/// A number whose value is ignored. The parser rejects numbers that overflow; this type avoids that
/// by always reading 0.
struct Number {
    Number(double written) : written_(written) {}
    operator double&() { return written_; }
    operator double() const { return 0; }

private:
    double written_;
};

using Json = nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t,
                                  std::uint64_t, Number>;

/// SAX handler that stores the two texts. Returning false stops the parser.
class Reader final : public Json::json_sax_t {
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
    bool number_float(Number, const std::string&) override { return set(noText); }
    bool binary(binary_t&) override { return set(noText); }

    bool start_object(std::size_t) override { return (depth_ == 0 || set(noText)) && open(); }
    bool start_array(std::size_t) override { return set(noText) && open(); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool parse_error(std::size_t, const std::string&, const Json::exception&) override {
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
    if (!Json::sax_parse(body, &reader))
        return std::nullopt;
    return reader.response();
}

} // namespace brellowind
