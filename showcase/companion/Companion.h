// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace brellowind::demo {

/// A child process that ends with this process, also if that crashes.
class Companion {
public:
    /// Redirects its standard error to `errorFile`, if given.
    Companion(const QString& program, const QStringList& arguments,
              const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
              const QString& errorFile = {});
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;
    ~Companion();

    /// The next line of its standard output; empty if it ends first or takes too long.
    QString readLine();

    /// Writes a line to its standard input.
    void writeLine(const QString& line) { process_.write(line.toUtf8() + '\n'); }

    /// The unread rest of its standard output so far.
    QByteArray remainingOutput() { return process_.readAllStandardOutput(); }

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 processId() const { return process_.processId(); }

    /// Waits until it exits. Returns the exit status, or -1 if it crashed or takes too long.
    int finish();

    /// Terminates it and waits. Returns the exit status, or -1 if it had to be killed.
    int end();

private:
    QProcess process_;
};

} // namespace brellowind::demo
