#pragma once

#include "settings/UpdateState.h"

#include <string_view>
#include <variant>

/// The release feed: one JSON object that describes the latest release.
namespace brellowind::UpdateFeed {

/// Why a document is no release feed, in words of ours: nothing of the document is in them.
struct Undecodable {
    std::string_view description;
};

/// Reads `version`, `url` and, when it is there, `notes`. One of them of a wrong type, a missing
/// `version` or `url` and a `url` that is no web address spoil the whole feed; keys that it
/// does not know do not.
std::variant<Release, Undecodable> decode(std::string_view document);

} // namespace brellowind::UpdateFeed
