#pragma once

#include "platform/LoginItem.h"

#include <filesystem>
#include <string>

namespace brellowind::platform {

/// The login item of a freedesktop.org desktop: an entry in the user's autostart folder. It is
/// enabled exactly when the entry is there, is neither hidden nor switched off, and starts this
/// program. Entries that do not are the user's own matter: only a registration replaces them.
class XdgLoginItem final : public LoginItem {
public:
    /// `configurationFolder` is the user's, usually ~/.config; `executable` is the absolute path
    /// of this program; `searchPath` lists the folders, separated by colons, in which the session
    /// finds programs by their bare names.
    XdgLoginItem(std::filesystem::path configurationFolder, std::filesystem::path executable,
                 std::string searchPath);

    Status status() override;
    std::optional<std::string> registerItem() override;
    std::optional<std::string> unregisterItem() override;

private:
    /// Whether the session would start this program for `program`, a path or a bare name.
    bool namesThisProgram(const std::string& program) const;

    /// The executable file that `program` stands for; empty when there is none.
    std::filesystem::path resolve(const std::string& program) const;

    std::filesystem::path entry_;
    std::filesystem::path executable_;
    std::string searchPath_;
};

} // namespace brellowind::platform
