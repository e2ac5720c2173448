#pragma once

#include <string>
#include <vector>

namespace brellowind::platform {

/// The constants that the product's owner or a packager supplies, compiled in. An empty address,
/// mailbox or notice leaves out what would use it.
struct ProductConstants {
    std::string version;      ///< short version, such as "1.2"; empty in a build without one
    std::string lyricsOrigin; ///< scheme, host and optional port, without a trailing slash
    std::string websiteURL;
    std::string socialURL;
    std::string privacyPolicyURL;
    std::string termsURL;
    std::string feedbackEmail;
    std::string updateFeedURL; ///< https, of a document named latest.json
    std::string legalNotice;   ///< one line

    /// The players that count as Spotify: bus names after "org.mpris.MediaPlayer2.", the preferred
    /// one first. For systems whose players are on a message bus.
    std::vector<std::string> mprisPlayers;
};

} // namespace brellowind::platform
