#pragma once

#include <string>
#include <string_view>

/// The program's fixed texts and addresses. The owner's are those of the installed services; the
/// references stay valid as long as these do.
namespace brellowind::AppInfo {

inline constexpr std::string_view name = "Brellowind";
inline constexpr std::string_view description = "Lyrics that live in your notch";

const std::string& websiteURL();
const std::string& socialURL();
const std::string& privacyPolicyURL();
const std::string& termsURL();
const std::string& feedbackEmail();
const std::string& updateFeedURL();
const std::string& legalNotice();

/// The version as people read it: "Version 1.2", or "Version —" in a build without one.
std::string version();

} // namespace brellowind::AppInfo
