#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "settings/UpdateState.h"

#include <cstddef>
#include <memory>
#include <string>

namespace brellowind {

/// Tells whether a newer release of the program exists. It asks only when it is told to. Main
/// thread only.
class UpdateChecker : public std::enable_shared_from_this<UpdateChecker> {
public:
    using Release = brellowind::Release;
    using State = UpdateState;

    /// A longer feed counts as a transport failure.
    static constexpr std::size_t maximumBodyBytes = 1024 * 1024;

    /// The one instance. It belongs to the installed services: made on first use, dropped with
    /// them. A test that installs a machine therefore begins with a checker that is idle.
    static UpdateChecker& shared();

    /// The program's own short version; "0" in a build without one.
    static std::string currentVersion();

    /// One check, from `checking` to its outcome. A failed one, cancellation included, writes one
    /// line to the log. A check that begins while another runs sends its own request, and each
    /// sets the state when it ends.
    Task<void> check();

    /// Opens the download address of an `available` release; does nothing in any other state.
    void openDownload() const;

    Published<State, UpdateChecker> state{State::idle()};

private:
    UpdateChecker() = default;

    static Task<void> run(std::shared_ptr<UpdateChecker> self);
};

} // namespace brellowind
