// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "platform/HttpClient.h"
#include "platform/LinkOpener.h"
#include "platform/Log.h"
#include "platform/ProductConstants.h"
#include "settings/UpdateState.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace brellowind {

/// Checks for newer releases. Must be owned by a std::shared_ptr. Main thread only.
class UpdateChecker : public std::enable_shared_from_this<UpdateChecker> {
public:
    using Release = brellowind::Release;
    using State = UpdateState;

    /// A longer feed is a transport failure.
    static constexpr std::size_t maximumBodyBytes = 1024 * 1024;

    /// All references must outlive this object and its checks.
    UpdateChecker(platform::HttpClient& http, platform::Log& log, platform::LinkOpener& links,
                  const platform::ProductConstants& constants);

    /// The program's short version; "0" if it is empty.
    std::string currentVersion() const;

    /// Whether a release feed is configured.
    bool hasFeed() const;

    /// Performs one check, from `checking` to its outcome. Logs one line on failure, including
    /// cancellation. Concurrent checks are independent; each sets the state when it completes. Does
    /// nothing without a release feed.
    Task<void> check();

    /// Opens the download URL of an `available` release. Does nothing in other states.
    void openDownload() const;

    Published<State, UpdateChecker> state{State::idle()};

private:
    static Task<void> run(std::shared_ptr<UpdateChecker> self);
    State outcome(const platform::HttpResult& result) const;
    State failure(std::string_view description) const;

    platform::HttpClient& http_;
    platform::Log& log_;
    platform::LinkOpener& links_;
    const platform::ProductConstants& constants_;
};

} // namespace brellowind
