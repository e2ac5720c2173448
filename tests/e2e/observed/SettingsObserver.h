// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusVariant>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

namespace brellowind::test {

/// A D-Bus object that reports the content and the geometry of the settings window. Elements are
/// identified by accessible name or text. Rectangles are x, y, width and height in points; empty
/// for invisible elements.
class SettingsObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Settings")

public:
    /// Returns false if there is no bus.
    bool listen();

public Q_SLOTS:
    /// Whether the window exists, open or not.
    Q_SCRIPTABLE bool Exists() const;

    /// The native window; 0 while it is closed.
    Q_SCRIPTABLE uint Window() const;

    /// Whether the window has the keyboard focus.
    Q_SCRIPTABLE bool IsActive() const;

    /// All visible texts.
    Q_SCRIPTABLE QStringList Texts() const;

    /// A property of an element.
    Q_SCRIPTABLE QDBusVariant Property(const QString& element, const QString& property) const;

    /// The rectangle of an element in the window.
    Q_SCRIPTABLE QList<double> Rectangle(const QString& element) const;
};

} // namespace brellowind::test
