// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"
#include "session/Desktop.h"

#include <QDBusConnection>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

namespace brellowind::test {

/// A session for starting programs.
struct ProgramSession {
    /// On `desktop`, with `more` added to the environment. `launcher` is a command prefix, such as
    /// a tracer.
    static ProgramSession on(const Desktop& desktop, const QProcessEnvironment& more = {},
                             const QStringList& launcher = {});

    using Start = std::function<std::unique_ptr<demo::Companion>(const QString& program,
                                                                 const QStringList& arguments)>;

    QDBusConnection bus;
    Start start;
    QString errorFile; ///< that everything started writes its standard error to
};

} // namespace brellowind::test
