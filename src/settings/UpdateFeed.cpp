// SPDX-License-Identifier: MIT

#include "settings/UpdateFeed.h"

#include "foundation/AbsoluteURL.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

namespace brellowind::UpdateFeed {
namespace {

/// The text at `key`; null if missing or of another type.
std::string* textAt(nlohmann::json& object, const char* key) {
    const auto value = object.find(key);
    return value == object.end() ? nullptr : value->get_ptr<std::string*>();
}

/// Whether `url` is http or https, with a host.
bool isWebAddress(std::string_view url) {
    const auto authority = url.find("://");
    if (!isAbsoluteURL(url) || authority == std::string_view::npos)
        return false;
    std::string scheme(url.substr(0, authority));
    std::ranges::transform(scheme, scheme.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
    auto host = url.substr(authority + 3);
    host = host.substr(0, host.find_first_of("/?#"));
    host = host.substr(host.find('@') + 1); // npos + 1 is 0
    return (scheme == "http" || scheme == "https") && !host.substr(0, host.find(':')).empty();
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
    if (!isWebAddress(*url))
        return Undecodable{"the url of the release feed is not a web address"};
    Release release{std::move(*version), std::move(*url), std::nullopt};
    if (const auto notes = feed.find("notes"); notes != feed.end() && !notes->is_null()) {
        if (!notes->is_string())
            return Undecodable{"the notes of the release feed are not a text"};
        release.notes = std::move(notes->get_ref<std::string&>());
    }
    return release;
}

} // namespace brellowind::UpdateFeed
