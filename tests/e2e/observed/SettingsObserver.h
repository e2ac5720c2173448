#pragma once

#include <QDBusVariant>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace brellowind::test {

/// Tells on the session bus what the settings window shows, and where. An element goes by its
/// accessible name or its text. Rectangles are x, y, width and height in points; an empty list
/// stands for what cannot be seen.
class SettingsObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Settings")

public:
    /// False when there is no bus.
    bool listen();

public Q_SLOTS:
    /// Whether the program holds the window, be it open or not.
    Q_SCRIPTABLE bool Exists() const;

    /// The native window; 0 while it is closed.
    Q_SCRIPTABLE uint Window() const;

    /// Whether the window has the keyboard.
    Q_SCRIPTABLE bool IsActive() const;

    /// The texts that can be seen.
    Q_SCRIPTABLE QStringList Texts() const;

    /// A property of an element.
    Q_SCRIPTABLE QDBusVariant Property(const QString& element, const QString& property) const;

    /// Where an element is in the window.
    Q_SCRIPTABLE QList<double> Rectangle(const QString& element) const;
};

} // namespace brellowind::test
