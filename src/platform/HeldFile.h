// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>

namespace brellowind::platform {

/// A file that is used later, as it is when this object is made: an upgrade of the program in
/// between puts another file in its place.
class HeldFile {
public:
    explicit HeldFile(std::string path);
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;
    ~HeldFile();

    /// A path of that very file, for this process and for as long as this object lives. Of a file
    /// that could not be opened, the path it was given. Absent where the system has no path of a
    /// file that has been replaced.
    std::optional<std::string> path() const; // each system's own

private:
    std::string path_;
    int descriptor_; ///< below 0: it could not be opened
};

} // namespace brellowind::platform
