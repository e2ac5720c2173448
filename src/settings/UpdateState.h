// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <utility>

namespace brellowind {

/// A release of the program, as the release feed describes it.
struct Release {
    std::string version;
    std::string url; ///< download page, http or https
    std::optional<std::string> notes;

    bool operator==(const Release&) const = default;
};

/// The state of the update check.
class UpdateState {
public:
    enum class Case {
        idle,      ///< no check made yet
        checking,  ///< a check is running
        upToDate,  ///< the feed's release is not newer than the program
        available, ///< the feed's release is newer
        failed,    ///< the feed could not be fetched or read
    };

    static UpdateState idle() { return UpdateState(Case::idle); }
    static UpdateState checking() { return UpdateState(Case::checking); }
    static UpdateState upToDate() { return UpdateState(Case::upToDate); }
    static UpdateState available(Release release) {
        return UpdateState(Case::available, std::move(release));
    }
    static UpdateState failed() { return UpdateState(Case::failed); }

    Case which() const { return case_; }

    /// The release of an `available` state; absent in other states.
    const std::optional<Release>& release() const { return release_; }

    bool operator==(const UpdateState&) const = default;

private:
    explicit UpdateState(Case which, std::optional<Release> release = {})
        : case_(which), release_(std::move(release)) {}

    Case case_;
    std::optional<Release> release_;
};

} // namespace brellowind
