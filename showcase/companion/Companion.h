#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace brellowind::demo {

/// A process that lives no longer than this one, whatever ends it.
class Companion {
public:
    /// Its standard error goes to the file at `errorFile`; without one, where this process's goes.
    Companion(const QString& program, const QStringList& arguments,
              const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
              const QString& errorFile = {});
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;
    ~Companion();

    /// The next line of its standard output; empty when it ends without one or takes too long.
    QString readLine();

    /// Writes a line to its standard input.
    void writeLine(const QString& line) { process_.write(line.toUtf8() + '\n'); }

    /// What it has written to its standard output beside the lines that were read.
    QByteArray remainingOutput() { return process_.readAllStandardOutput(); }

    bool isRunning() const { return process_.state() != QProcess::NotRunning; }
    qint64 processId() const { return process_.processId(); }

    /// Waits until it ends by itself. The exit status, or -1 when it crashed or takes too long.
    int finish();

    /// Asks it to end and waits for that. The exit status, or -1 when it had to be killed.
    int end();

private:
    QProcess process_;
};

} // namespace brellowind::demo
