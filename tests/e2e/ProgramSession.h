#pragma once

#include "companion/Companion.h"
#include "session/Desktop.h"

#include <QDBusConnection>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

namespace brellowind::test {

/// A session that programs are started in.
struct ProgramSession {
    /// On `desktop` with `more` in the environment. `launcher` is the beginning of a command that
    /// runs the command that follows it.
    static ProgramSession on(const Desktop& desktop, const QProcessEnvironment& more = {},
                             const QStringList& launcher = {});

    using Start = std::function<std::unique_ptr<demo::Companion>(const QString& program,
                                                                 const QStringList& arguments)>;

    QDBusConnection bus;
    Start start;
    QString errorFile; ///< that everything started writes its standard error to
};

} // namespace brellowind::test
