#pragma once

#include "platform/RunningApplications.h"
#include "platform/Scripting.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStringList>
#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QDBusPendingCallWatcher;

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

    MprisPlayer(QDBusConnection bus, MprisVocabulary vocabulary);
    ~MprisPlayer() override;

    ScriptOutcome execute(std::string_view source) override;
    std::vector<std::optional<std::string>> bundleIdentifiers() override;

private:
    ScriptOutcome readOut(const QString& player);
    ScriptOutcome playPause(const QString& player);

    QDBusReply<QStringList> namesOnBus() const;

    /// Of `names` those that count, the plain ones first.
    QStringList playersAmong(const QStringList& names) const;

    QDBusMessage call(const QDBusMessage& request);
    void awaitRecovery(const QString& player);

    QDBusConnection bus_;
    MprisVocabulary vocabulary_;
    QStringList running_; ///< as last asked for; serves the one reading that follows
    std::unique_ptr<QDBusPendingCallWatcher> recovery_; ///< there while the player hangs
};

} // namespace brellowind::platform
