#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace brellowind::demo {

/// A process that lives no longer than this one, whatever ends it.
class Companion {
public:
    Companion(const QString& program, const QStringList& arguments);
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;
    ~Companion();

    /// The first line of its standard output; empty when it ends without one or takes too long.
    QString firstLine();

private:
    QProcess process_;
};

} // namespace brellowind::demo
