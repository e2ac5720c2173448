// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "platform/FailureLog.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/linux/MprisNames.h"
#include "platform/linux/MprisProxy.h"

#include <QDBusConnection>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brellowind::platform {

/// The player on the session bus. A reading sends `Properties.GetAll` to all configured players on
/// the bus at the same time; normally there is one.
///
/// The main loop and the log must outlive this object and its tasks. A task that outlives this
/// object never completes.
class MprisPlayer final : public Player {
public:
    /// `players` are names without "org.mpris.MediaPlayer2.", in order of preference. Without a bus
    /// it logs one line and reports that no player is running.
    MprisPlayer(QDBusConnection bus, std::vector<std::string> players, MainLoop& mainLoop,
                Log& log);

    Task<Answer> read() override;

    /// Sent to the player of the last reading, else to the first one.
    Task<void> playPause() override;

private:
    using Proxies = std::map<MprisNames::Name, MprisProxy>;

    bool hasBus();
    void changeOwner(const MprisNames::Name& name, bool isOwned);
    void ask();
    std::optional<Answer> answer();
    Proxies::const_iterator playerToControl() const;

    QDBusConnection bus_;
    MainLoop& mainLoop_;
    Log& log_;
    FailureLog busFailures_;
    std::shared_ptr<Observers> changes_ = std::make_shared<Observers>(); ///< of the members below
    Proxies proxies_;                       ///< of the players on the bus
    bool isListed_ = false;                 ///< whether the initial listing is complete
    std::optional<MprisNames::Name> shown_; ///< of the last reading
    std::optional<MprisNames> names_;       ///< absent without a bus
};

} // namespace brellowind::platform
