// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LoginItem.h"

#include <filesystem>
#include <string>

namespace brellowind::platform {

/// The login item of a freedesktop.org desktop: an entry in the user's autostart folder. Enabled if
/// the entry exists, is neither hidden nor disabled, and starts this program. Other entries are
/// replaced by a registration only.
class XdgLoginItem final : public LoginItem {
public:
    /// `configurationFolder` is usually ~/.config, `executable` the absolute path of this program,
    /// `searchPath` the session's PATH.
    XdgLoginItem(std::filesystem::path configurationFolder, std::filesystem::path executable,
                 std::string searchPath);

    Status status() override;
    std::optional<std::string> registerItem() override;
    std::optional<std::string> unregisterItem() override;

private:
    /// Whether `program`, a path or a name, resolves to this program.
    bool namesThisProgram(const std::string& program) const;

    /// The executable file of `program`; empty if there is none.
    std::filesystem::path resolve(const std::string& program) const;

    std::filesystem::path entry_;
    std::filesystem::path executable_;
    std::string searchPath_;
};

} // namespace brellowind::platform
