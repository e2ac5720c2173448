// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <QVariantList>
#include <optional>

namespace brellowind::test {

/// An accessible object: its application and path.
struct Accessible {
    QString service;
    QDBusObjectPath path;

    friend const QDBusArgument& operator>>(const QDBusArgument& argument, Accessible& accessible);
};

/// A screen reader on the accessibility bus of a session.
class AccessibilityReader {
public:
    /// `environment` is that of the session of `bus`.
    AccessibilityReader(QDBusConnection session, const QProcessEnvironment& environment);
    AccessibilityReader(const AccessibilityReader&) = delete;
    AccessibilityReader& operator=(const AccessibilityReader&) = delete;
    ~AccessibilityReader();

    /// Waits for the first object with a name and a role, of any program. Fails the test after a
    /// timeout.
    std::optional<Accessible> waitFor(const char* name, const char* role);

    /// The extents on the desktop, in points.
    QRect extents(const Accessible& accessible);

    /// Performs the first action of an object.
    bool press(const Accessible& accessible);

    QDBusConnection bus() const { return QDBusConnection(name_); }

private:
    void tellActivatedServices(const QProcessEnvironment& environment);
    QDBusMessage ask(const Accessible& accessible, const QString& interface, const char* method,
                     const QVariantList& arguments = {});
    QString nameOf(const Accessible& accessible);
    QString roleOf(const Accessible& accessible);
    std::optional<Accessible> find(const Accessible& root, const QString& name, const QString& role,
                                   int depth);

    QDBusConnection session_;
    QString name_;
};

} // namespace brellowind::test
