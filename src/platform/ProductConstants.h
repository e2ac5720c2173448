// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace brellowind::platform {

/// Compile-time constants from the product's owner or packager. An empty address, mailbox or notice
/// disables what would use it.
struct ProductConstants {
    std::string version;      ///< short version, such as "1.2"; may be empty
    std::string lyricsOrigin; ///< scheme, host and optional port, without a trailing slash
    std::string websiteURL;
    std::string socialURL;
    std::string privacyPolicyURL;
    std::string termsURL;
    std::string feedbackEmail;
    std::string updateFeedURL; ///< https, of a document named latest.json
    std::string legalNotice;   ///< one line

    /// The players that count as Spotify, in order of preference: D-Bus names without
    /// "org.mpris.MediaPlayer2.". Used on Linux.
    std::vector<std::string> mprisPlayers;
};

} // namespace brellowind::platform
