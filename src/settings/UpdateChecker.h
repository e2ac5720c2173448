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

/// Tells whether a newer release exists. Held by a std::shared_ptr. Main thread only.
class UpdateChecker : public std::enable_shared_from_this<UpdateChecker> {
public:
    using Release = brellowind::Release;
    using State = UpdateState;

    /// A longer feed counts as a transport failure.
    static constexpr std::size_t maximumBodyBytes = 1024 * 1024;

    /// Idle. The services and the constants must outlive it and its checks.
    UpdateChecker(platform::HttpClient& http, platform::Log& log, platform::LinkOpener& links,
                  const platform::ProductConstants& constants);

    /// The program's own short version; "0" in a build without one.
    std::string currentVersion() const;

    /// Whether there is a release feed to ask.
    bool hasFeed() const;

    /// Does nothing without a release feed. Otherwise one check, from `checking` to its outcome. A
    /// failed one, cancellation included, writes one line to the log. A check that begins while
    /// another runs sends its own request, and each sets the state when it ends.
    Task<void> check();

    /// Opens the download address of an `available` release; does nothing in any other state.
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
