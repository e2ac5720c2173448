// SPDX-License-Identifier: MIT

#include "Fuzz.h"
#include "foundation/AbsoluteURL.h"
#include "foundation/Utf8.h"
#include "settings/UpdateFeed.h"

#include <nlohmann/json.hpp>

// Arbitrary bytes as the release feed.

namespace brellowind::fuzz {
namespace {

bool spells(const nlohmann::json& feed, const char* key, const std::string& text) {
    const auto value = feed.find(key);
    return value != feed.end() && *value == text;
}

void requireSaid(const Release& release, std::string_view document) {
    const auto feed = nlohmann::json::parse(document, nullptr, /*allow_exceptions=*/false);
    require(feed.is_object(), "a release is an object");
    require(spells(feed, "version", release.version), "the version is the feed's");
    require(spells(feed, "url", release.url), "the address is the feed's");
    require(!release.notes || spells(feed, "notes", *release.notes), "the notes are the feed's");
    require(isAbsoluteURL(release.url), "the address is absolute");
    require(utf8::isValid(release.version), "the version is UTF-8");
    require(!release.notes || utf8::isValid(*release.notes), "the notes are UTF-8");
}

} // namespace
} // namespace brellowind::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brellowind;
    const auto document = fuzz::text(data, size);
    const auto decoded = UpdateFeed::decode(document);
    if (const auto* release = std::get_if<Release>(&decoded))
        fuzz::requireSaid(*release, document);
    else
        fuzz::require(!std::get<UpdateFeed::Undecodable>(decoded).description.empty(),
                      "what is wrong is said");
    return 0;
}
