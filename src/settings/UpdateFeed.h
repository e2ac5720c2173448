// SPDX-License-Identifier: MIT

#pragma once

#include "settings/UpdateState.h"

#include <string_view>
#include <variant>

/// The release feed: one JSON object that describes the latest release.
namespace brellowind::UpdateFeed {

/// Why a document is not a release feed. Does not quote the document.
struct Undecodable {
    std::string_view description;
};

/// Reads `version`, `url` and the optional `notes`. Rejects wrong types, a missing `version` or
/// `url`, and a `url` that is not http or https. Ignores unknown keys.
std::variant<Release, Undecodable> decode(std::string_view document);

} // namespace brellowind::UpdateFeed
