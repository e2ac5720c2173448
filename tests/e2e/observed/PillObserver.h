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

/// Tells on the session bus what the pill's items draw, and where: it reads the very objects that
/// draw. Rectangles are x, y, width and height in points; an empty list stands for what is not
/// there.
class PillObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Pill")

public:
    /// Both must outlive the observer, and `window` show the pill's items already.
    PillObserver(const SceneWindow& window, NotchRootView& view);

    /// False when there is no bus or the pill has no line.
    bool listen();

public Q_SLOTS:
    /// What one of the pill's lines shows: "lyricLine" or "panelLine".
    Q_SCRIPTABLE QString Text(const QString& line) const;

    /// What the pill shows beside texts, such as "isMinimized".
    Q_SCRIPTABLE bool Form(const QString& name) const;

    /// Width and height of one of the pill's items as it is laid out, without what scales it.
    Q_SCRIPTABLE QList<double> Size(const QString& item) const;

    /// Where one of the pill's items is drawn in the window, with all that scales it.
    Q_SCRIPTABLE QList<double> Rectangle(const QString& item) const;

    /// The native window.
    Q_SCRIPTABLE uint Window() const;

    /// The native window of the context menu; 0 while it is closed.
    Q_SCRIPTABLE uint Menu() const;

    /// Where the window of the context menu is on the desktop.
    Q_SCRIPTABLE QList<double> MenuPlace() const;

    /// Where an entry of the context menu is in the menu's window.
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
