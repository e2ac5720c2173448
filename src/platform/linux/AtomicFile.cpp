#include "platform/linux/AtomicFile.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace brellowind::platform {
namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::error_code makeFolders(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::is_directory(folder, error))
        return {};
    if (folder.has_relative_path())
        if (const auto parentError = makeFolders(folder.parent_path()))
            return parentError;
    if (::mkdir(folder.c_str(), S_IRWXU) == 0)
        return {};
    const auto failure = lastError();
    if (failure != std::errc::file_exists)
        return failure;
    if (std::filesystem::is_directory(folder, error)) // somebody else was faster
        return {};
    return std::make_error_code(std::errc::not_a_directory);
}

std::error_code writeAll(int file, std::string_view contents) {
    while (!contents.empty()) {
        const auto written = ::write(file, contents.data(), contents.size());
        if (written < 0 && errno != EINTR)
            return lastError();
        if (written > 0)
            contents.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fsync(file) == 0 ? std::error_code{} : lastError();
}

} // namespace

std::error_code replaceFile(const std::filesystem::path& path, std::string_view contents) {
    if (const auto error = makeFolders(path.parent_path()))
        return error;
    // Its name must not end as the file's does: what reads the folder would take it for another.
    std::string draft = path.parent_path() / ("." + path.filename().string() + ".XXXXXX");
    const int file = ::mkstemp(draft.data());
    if (file < 0)
        return lastError();
    auto error = writeAll(file, contents);
    if (::close(file) != 0 && !error)
        error = lastError();
    if (!error && ::rename(draft.c_str(), path.c_str()) != 0)
        error = lastError();
    if (error)
        ::unlink(draft.c_str());
    return error;
}

} // namespace brellowind::platform
