#pragma once

#include <QDBusVariant>
#include <QList>
#include <QObject>
#include <QString>

namespace brellowind {

class Item;
class SceneWindow;

namespace test {

/// Tells on the session bus what the pill's items draw, and where: it reads the very objects that
/// draw. Rectangles are x, y, width and height in points; an empty list stands for what is not
/// there.
class PillObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Pill")

public:
    /// `window` must outlive the observer and show the pill's items already.
    explicit PillObserver(const SceneWindow& window);

    /// False when there is no bus or the pill has no line.
    bool listen();

public Q_SLOTS:
    Q_SCRIPTABLE QString Text() const;

    /// A property of what the pill is drawn from, such as "isMinimized".
    Q_SCRIPTABLE QDBusVariant Form(const QString& property) const;

    /// A property of one of the pill's items.
    Q_SCRIPTABLE QDBusVariant Property(const QString& item, const QString& property) const;

    /// Where one of the pill's items is drawn in the window, with all that scales it.
    Q_SCRIPTABLE QList<double> Rectangle(const QString& item) const;

    /// The native window.
    Q_SCRIPTABLE uint Window() const;

    /// The native window of the context menu; 0 while it is closed.
    Q_SCRIPTABLE uint Menu() const;

    /// Where an entry of the context menu is in the menu's window.
    Q_SCRIPTABLE QList<double> MenuEntry(const QString& text) const;

Q_SIGNALS:
    Q_SCRIPTABLE void TextChanged(const QString& text);

private:
    const Item* item(const QString& name) const;

    const SceneWindow& window_;
    QObject* line_;
};

} // namespace test
} // namespace brellowind
