// SPDX-License-Identifier: MIT

#include "platform/linux/XdgLoginItem.h"

#include "foundation/Utf8.h"
#include "platform/linux/DesktopEntry.h"

#include <QFile>
#include <QSaveFile>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace brellowind::platform {
namespace {

namespace fs = std::filesystem;

constexpr const char* entryName = "brellowind.desktop";

/// The keys of an entry; empty without a readable file.
std::map<std::string, std::string> readEntry(const fs::path& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error))
        return {};
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    return DesktopEntry::parse(text);
}

std::string entryText(const fs::path& executable) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Brellowind\n"
           "Comment=Lyrics that live in your notch\n"
           "Exec=" +
           DesktopEntry::execValue(executable.native()) +
           "\n"
           "TryExec=" +
           DesktopEntry::escape(executable.native()) +
           "\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

bool isExecutableFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

std::string failure(const char* action, const fs::path& path, const std::string& reason) {
    return std::string("cannot ") + action + ' ' + path.native() + ": " + reason;
}

/// Creates `folder` and its missing parents, accessible by the user only.
std::error_code makeFolders(const fs::path& folder) {
    fs::path made;
    for (const auto& part : folder) {
        made /= part;
        std::error_code error;
        if (!fs::is_directory(made, error) && ::mkdir(made.c_str(), S_IRWXU) != 0 &&
            errno != EEXIST)
            return {errno, std::generic_category()};
    }
    return {};
}

/// The format does not allow invalid UTF-8, nor an equal sign in a program's name.
bool isUnwritable(const fs::path& executable) {
    return !executable.is_absolute() || !utf8::isValid(executable.native()) ||
           executable.native().find('=') != std::string::npos;
}

} // namespace

XdgLoginItem::XdgLoginItem(fs::path configurationFolder, fs::path executable,
                           std::string searchPath)
    : entry_(std::move(configurationFolder) / "autostart" / entryName),
      executable_(std::move(executable)), searchPath_(std::move(searchPath)) {}

LoginItem::Status XdgLoginItem::status() {
    auto entry = readEntry(entry_);
    if (entry["Type"] != "Application" || DesktopEntry::isTrue(entry["Hidden"]) ||
        DesktopEntry::isFalse(entry["X-GNOME-Autostart-enabled"]))
        return Status::notRegistered;
    if (entry.contains("TryExec")) {
        const auto required = DesktopEntry::unescape(entry["TryExec"]);
        if (!required || resolve(*required).empty())
            return Status::notRegistered;
    }
    const auto program = DesktopEntry::execProgram(entry["Exec"]);
    return program && namesThisProgram(*program) ? Status::enabled : Status::notRegistered;
}

std::optional<std::string> XdgLoginItem::registerItem() {
    if (status() == Status::enabled)
        return std::nullopt;
    if (isUnwritable(executable_))
        return "an autostart entry cannot name the program " + executable_.native();
    if (!isExecutableFile(executable_))
        return "there is no program at " + executable_.native();
    if (const auto error = makeFolders(entry_.parent_path()))
        return failure("write", entry_, error.message());
    std::error_code error;
    if (fs::is_symlink(entry_, error))
        fs::remove(entry_, error); // do not write through a symbolic link
    QSaveFile file(QFile::decodeName(entry_.c_str()));
    const auto text = QByteArray::fromStdString(entryText(executable_));
    // Unlike `flush`, `commit` does not report that the last bytes could not be written.
    if (!file.open(QIODevice::WriteOnly) || file.write(text) < 0 || !file.flush() || !file.commit())
        return failure("write", entry_, file.errorString().toStdString());
    return std::nullopt;
}

std::optional<std::string> XdgLoginItem::unregisterItem() {
    if (status() != Status::enabled)
        return std::nullopt;
    std::error_code error;
    fs::remove(entry_, error);
    if (error)
        return failure("remove", entry_, error.message());
    return std::nullopt;
}

bool XdgLoginItem::namesThisProgram(const std::string& program) const {
    if (program == executable_)
        return true;
    std::error_code error;
    const auto found = resolve(program);
    return !found.empty() && fs::equivalent(found, executable_, error);
}

fs::path XdgLoginItem::resolve(const std::string& program) const {
    if (program.find('/') != std::string::npos) {
        const fs::path path(program);
        return path.is_absolute() && isExecutableFile(path) ? path : fs::path();
    }
    std::istringstream folders(searchPath_);
    for (std::string folder; std::getline(folders, folder, ':');) {
        const auto path = fs::path(folder) / program;
        if (path.is_absolute() && isExecutableFile(path))
            return path;
    }
    return {};
}

} // namespace brellowind::platform
