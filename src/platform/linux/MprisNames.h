// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/BusCall.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QString>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brellowind::platform {

/// The configured players on the bus: the owners of one of the names or of its ".instance…" forms.
/// Lists the names once, then observes NameOwnerChanged.
class MprisNames {
public:
    /// Rank and bus name. The plain names rank as configured, before their instances.
    using Name = std::pair<std::size_t, QString>;

    using Changed = std::function<void(const Name& name, bool isOwned)>;

    /// `players` are names without "org.mpris.MediaPlayer2.". Calls `changed` for each initial
    /// name, then `listed` once, then `changed` for each change of an owner.
    MprisNames(QDBusConnection bus, std::vector<std::string> players, Changed changed,
               std::function<void()> listed);

private:
    std::optional<Name> nameOf(const QString& busName) const;

    std::vector<std::string> players_;
    Changed changed_;
    QDBusServiceWatcher watcher_;
    std::optional<BusCall> listing_;
};

} // namespace brellowind::platform
