#include "settings/UpdateFeed.h"

#include "foundation/AbsoluteURL.h"

#include <nlohmann/json.hpp>
#include <utility>

namespace brellowind::UpdateFeed {
namespace {

/// The text at `key`, or null when nothing or something else is there.
std::string* textAt(nlohmann::json& object, const char* key) {
    const auto value = object.find(key);
    return value == object.end() ? nullptr : value->get_ptr<std::string*>();
}

} // namespace

std::variant<Release, Undecodable> decode(std::string_view document) {
    auto feed = nlohmann::json::parse(document, nullptr, /*allow_exceptions=*/false);
    if (feed.is_discarded())
        return Undecodable{"the release feed is not valid JSON"};
    if (!feed.is_object())
        return Undecodable{"the release feed is not a JSON object"};
    auto* version = textAt(feed, "version");
    if (!version)
        return Undecodable{"the release feed has no version that is a text"};
    auto* url = textAt(feed, "url");
    if (!url)
        return Undecodable{"the release feed has no url that is a text"};
    if (!isAbsoluteURL(*url))
        return Undecodable{"the url of the release feed is not an absolute URL"};
    Release release{std::move(*version), std::move(*url), std::nullopt};
    if (const auto notes = feed.find("notes"); notes != feed.end() && !notes->is_null()) {
        if (!notes->is_string())
            return Undecodable{"the notes of the release feed are not a text"};
        release.notes = std::move(notes->get_ref<std::string&>());
    }
    return release;
}

} // namespace brellowind::UpdateFeed
