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

/// The configured players on the bus: those that own one of the names, or one of its ".instance…"
/// forms. The bus is asked once; then it tells of changes.
class MprisNames {
public:
    /// A bus name behind its rank: the plain names as configured, then their instances.
    using Name = std::pair<std::size_t, QString>;

    /// `name` has a new owner, or none.
    using Changed = std::function<void(const Name& name, bool isOwned)>;

    /// `players` are names after "org.mpris.MediaPlayer2.". `changed` is called for each name that
    /// is there at the start, and for each change after that; `listed` once, after the former.
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
