#pragma once

#include "platform/RunningApplications.h"
#include "platform/Scripting.h"
#include "platform/linux/BusConnection.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace brellowind::platform {

/// What the player's own scripts and identifier mean on the session bus.
struct MprisVocabulary {
    std::string bundleIdentifier;
    std::string readOutScript;
    std::string playPauseScript;
    std::vector<std::string> players; ///< bus names after "org.mpris.MediaPlayer2."
};

/// Stands for the player application: a process that owns one of the players' bus names, or one of
/// its ".instance…" forms, counts as the running application; the read-out script is answered from
/// one `Properties.GetAll`, the play/pause script by `PlayPause`.
///
/// A player that does not answer costs one wait of `patience`; from then on every execution fails
/// at once until the player answers again. A bus that is gone makes every execution fail, and no
/// application run: a session does not outlive its bus, so there is no way back.
class MprisPlayer final : public Scripting, public RunningApplications {
public:
    static constexpr std::chrono::milliseconds patience{200};

    MprisPlayer(BusConnection bus, MprisVocabulary vocabulary);
    MprisPlayer(const MprisPlayer&) = delete; // a ping's answer comes to where it was sent from
    MprisPlayer& operator=(const MprisPlayer&) = delete;

    ScriptOutcome execute(std::string_view source) override;
    std::vector<std::optional<std::string>> bundleIdentifiers() override;

private:
    using Players = std::vector<std::string>; ///< bus names, the one to speak to first

    ScriptOutcome readOut(const std::string& player);
    ScriptOutcome playPause(const std::string& player);

    std::variant<Players, BusError> playersOnBus();
    std::size_t rank(std::string_view name) const;
    std::size_t ranks() const { return vocabulary_.players.size() + 1; }

    BusAnswer call(const std::string& player, const BusMessage& request);
    void awaitRecovery(const std::string& player);
    void recover(sd_bus_message& reply);

    BusConnection bus_;
    MprisVocabulary vocabulary_;
    Players running_; ///< as last asked for; serves the one reading that follows
    std::string hanging_;
    BusCall recovery_; ///< there while the player `hanging_` hangs; goes before the bus
};

} // namespace brellowind::platform
