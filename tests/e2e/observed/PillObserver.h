// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"

#include <QList>
#include <QObject>
#include <QString>

namespace brellowind {

class Item;
class NotchRootView;
class SceneWindow;

namespace test {

/// A D-Bus object that reports the content and the geometry of the pill's items, read from the
/// items. Rectangles are x, y, width and height in points; empty for missing items.
class PillObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Pill")

public:
    /// Both must outlive this object. `window` must have the pill's items.
    PillObserver(const SceneWindow& window, NotchRootView& view);

    /// Returns false if there is no bus or the pill has no line.
    bool listen();

public Q_SLOTS:
    /// The text of one of the pill's lines: "lyricLine" or "panelLine".
    Q_SCRIPTABLE QString Text(const QString& line) const;

    /// A flag of the pill's form, such as "isMinimized".
    Q_SCRIPTABLE bool Form(const QString& name) const;

    /// The laid-out size of one of the pill's items, without scaling.
    Q_SCRIPTABLE QList<double> Size(const QString& item) const;

    /// The drawn rectangle of one of the pill's items in the window, with scaling.
    Q_SCRIPTABLE QList<double> Rectangle(const QString& item) const;

    /// The native window.
    Q_SCRIPTABLE uint Window() const;

    /// The native window of the context menu; 0 while it is closed.
    Q_SCRIPTABLE uint Menu() const;

    /// The geometry of the context menu on the desktop.
    Q_SCRIPTABLE QList<double> MenuPlace() const;

    /// The rectangle of an entry in the context menu's window.
    Q_SCRIPTABLE QList<double> MenuEntry(const QString& text) const;

Q_SIGNALS:
    /// The text of "lyricLine".
    Q_SCRIPTABLE void TextChanged(const QString& text);

private:
    void redraw();
    const Item* item(const QString& name) const;

    const SceneWindow& window_;
    const NotchRootView& view_;
    QString text_;
    Subscription redraws_;
};

} // namespace test
} // namespace brellowind
