#include "views/interaction/Accessible.h"

#include "views/NotchQuickView.h"
#include "views/interaction/MenuWindow.h"

#include <QAccessibleObject>
#include <QGuiApplication>
#include <QQuickItem>

namespace brellowind {
namespace {

class AccessibleItem final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    AccessibleItem(QQuickItem& item, Accessible& accessible)
        : QAccessibleObject(&item), accessible_(accessible) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(item().window());
    }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QWindow* window() const override { return item().window(); }

    QRect rect() const override {
        const QRectF inWindow = item().mapRectToScene(item().boundingRect());
        const auto* shownIn = item().window();
        const QPoint origin = shownIn ? shownIn->mapToGlobal(QPoint(0, 0)) : QPoint();
        return inWindow.toAlignedRect().translated(origin);
    }

    QAccessible::Role role() const override { return accessible_.accessibleRole(); }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? accessible_.accessibleName() : QString();
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !item().window() || !item().window()->isVisible() || !item().isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface && accessible_.isPressable())
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }
    void doAction(const QString& action) override {
        if (action == pressAction())
            accessible_.press();
    }

private:
    QQuickItem& item() const { return *static_cast<QQuickItem*>(object()); }

    Accessible& accessible_;
};

class AccessibleWindow final : public QAccessibleObject {
public:
    AccessibleWindow(QQuickWindow& window, QAccessible::Role role)
        : QAccessibleObject(&window), role_(role) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qGuiApp);
    }
    QAccessibleInterface* child(int index) const override { return children().value(index); }
    int childCount() const override { return static_cast<int>(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(
            children().indexOf(const_cast<QAccessibleInterface*>(child))); // not changed by it
    }
    QWindow* window() const override { return &quickWindow(); }
    QRect rect() const override { return quickWindow().geometry(); }
    QAccessible::Role role() const override { return role_; }

    QAccessibleInterface* childAt(int x, int y) const override {
        const auto found = children();
        for (auto child = found.rbegin(); child != found.rend(); ++child) // the topmost first
            if ((*child)->rect().contains(x, y))
                return *child;
        return nullptr;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? QGuiApplication::applicationDisplayName() : QString();
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !quickWindow().isVisible();
        return state;
    }

private:
    QQuickWindow& quickWindow() const { return *static_cast<QQuickWindow*>(object()); }

    QList<QAccessibleInterface*> children() const {
        QList<QAccessibleInterface*> found;
        collect(*quickWindow().contentItem(), found);
        return found;
    }

    /// All that can be found now, from the bottom to the top.
    static void collect(const QQuickItem& from, QList<QAccessibleInterface*>& found) {
        for (auto* item : from.childItems()) {
            if (!item->isVisible() || !item->isEnabled())
                continue;
            if (dynamic_cast<Accessible*>(item))
                found.push_back(QAccessible::queryAccessibleInterface(item));
            collect(*item, found);
        }
    }

    QAccessible::Role role_;
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object) {
    if (auto* item = qobject_cast<QQuickItem*>(object)) {
        auto* accessible = dynamic_cast<Accessible*>(item);
        return accessible ? new AccessibleItem(*item, *accessible) : nullptr;
    }
    if (auto* notch = qobject_cast<NotchQuickView*>(object))
        return new AccessibleWindow(*notch, QAccessible::Window);
    if (auto* menu = qobject_cast<MenuWindow*>(object))
        return new AccessibleWindow(*menu, QAccessible::PopupMenu);
    return nullptr;
}

void announce(QQuickItem& item, QAccessible::Event what) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&item, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void installAccessibility() {
    QAccessible::installFactory(makeAccessible);
}

void announceName(QQuickItem& item) {
    announce(item, QAccessible::NameChanged);
}

void announceVisibility(QQuickItem& item) {
    announce(item, item.isVisible() ? QAccessible::ObjectShow : QAccessible::ObjectHide);
}

} // namespace brellowind
