#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace brellowind::test {

/// One call of the system as the tracer writes it down.
struct SystemCall {
    QByteArray name;
    QByteArray arguments; ///< and the result, where the line has it

    bool operator==(const SystemCall&) const = default;
};

/// The calls in a trace of all threads, in order. Ends of calls that were interrupted are left out.
QList<SystemCall> systemCalls(const QByteArray& trace);

/// Whether the trace tells of a process that ended by itself with this status.
bool tellsOfExit(const QByteArray& trace, int status);

/// Every place that the calls have connected or sent to, or listened at: "unix:" and a path, which
/// begins with an at sign when it is abstract; "inet:" and an address with a port; or the whole
/// call where it is none of these.
QStringList destinations(const QList<SystemCall>& calls);

/// Every path that the calls were to make, write, move, remove or change the attributes of.
QStringList changedPaths(const QList<SystemCall>& calls);

/// Every program that the calls were to run.
QStringList programs(const QList<SystemCall>& calls);

} // namespace brellowind::test
