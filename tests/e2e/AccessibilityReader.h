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

/// A thing that assistive technology can see: who has it, and where.
struct Accessible {
    QString service;
    QDBusObjectPath path;

    friend const QDBusArgument& operator>>(const QDBusArgument& argument, Accessible& accessible);
};

/// The bus of assistive technology of a session, and a reader of the screen on it.
class AccessibilityReader {
public:
    /// `environment` leads into the session of `bus`.
    AccessibilityReader(QDBusConnection session, const QProcessEnvironment& environment);
    AccessibilityReader(const AccessibilityReader&) = delete;
    AccessibilityReader& operator=(const AccessibilityReader&) = delete;
    ~AccessibilityReader();

    /// Waits for the first thing of a name and a role, whichever program has it. Fails the running
    /// test when it does not come.
    std::optional<Accessible> waitFor(const char* name, const char* role);

    /// Where it is on the desktop, in points.
    QRect extents(const Accessible& accessible);

    /// Does what the first action of a thing does.
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
