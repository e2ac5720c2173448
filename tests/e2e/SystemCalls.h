// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace brellowind::test {

/// A system call in a trace.
struct SystemCall {
    QByteArray name;
    QByteArray arguments; ///< and the result, where the line has it

    bool operator==(const SystemCall&) const = default;
};

/// The calls in a trace of all threads, in order, without the ends of interrupted calls.
QList<SystemCall> systemCalls(const QByteArray& trace);

/// Whether the trace has a process that exited with this status.
bool tellsOfExit(const QByteArray& trace, int status);

/// The addresses that the calls have connected or sent to, or listened at: "unix:" and a path, with
/// an at sign if abstract; "inet:" and an address with a port; the whole call for other families.
QStringList destinations(const QList<SystemCall>& calls);

/// All paths that the calls create, write, move, remove or change attributes of.
QStringList changedPaths(const QList<SystemCall>& calls);

/// All programs that the calls execute.
QStringList programs(const QList<SystemCall>& calls);

} // namespace brellowind::test
