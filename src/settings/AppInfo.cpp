#include "settings/AppInfo.h"

namespace brellowind::AppInfo {

std::string version(std::string_view shortVersion) {
    std::string text = "Version ";
    text += shortVersion.empty() ? "—" : shortVersion;
    return text;
}

} // namespace brellowind::AppInfo
