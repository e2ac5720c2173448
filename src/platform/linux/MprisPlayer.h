#pragma once

#include "foundation/Observers.h"
#include "platform/FailureLog.h"
#include "platform/MainLoop.h"
#include "platform/Player.h"
#include "platform/linux/MprisNames.h"
#include "platform/linux/MprisProxy.h"

#include <QDBusConnection>
#include <QString>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brellowind::platform {

/// The player on the session bus. A reading is one `Properties.GetAll` to each of the configured
/// players that is there, all at once; normally that is one.
///
/// The main loop and the log outlive this and its tasks. A task that outlives this never ends.
class MprisPlayer final : public Player {
public:
    /// `players` are names after "org.mpris.MediaPlayer2.", the preferred one first. A missing bus
    /// is one line in the log, and no player runs.
    MprisPlayer(QDBusConnection bus, std::vector<std::string> players, MainLoop& mainLoop,
                Log& log);

    Task<Answer> read() override;

    /// Goes to the player that the last reading showed, else to the first one.
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
    std::shared_ptr<Observers> changes_ = std::make_shared<Observers>(); ///< of all below
    Proxies proxies_;                       ///< of the players that are there
    bool isListed_ = false;                 ///< whether all of those are known
    std::optional<MprisNames::Name> shown_; ///< by the last reading
    std::optional<MprisNames> names_;       ///< absent without a bus
};

} // namespace brellowind::platform
