// SPDX-License-Identifier: MIT

#include "views/scene/Accessible.h"

#include "views/scene/SceneWindow.h"

#include <QAccessibleObject>
#include <QGuiApplication>

namespace brellowind {
namespace {

class AccessibleItem final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    AccessibleItem(Item& item, Accessible& accessible)
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
        state.focusable = accessible_.isFocusable();
        state.focused = accessible_.isFocused();
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
    Item& item() const { return *static_cast<Item*>(object()); }

    Accessible& accessible_;
};

class AccessibleWindow final : public QAccessibleObject {
public:
    explicit AccessibleWindow(SceneWindow& window) : QAccessibleObject(&window) {}

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qGuiApp);
    }
    QAccessibleInterface* child(int index) const override { return children().value(index); }
    int childCount() const override { return static_cast<int>(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(
            children().indexOf(const_cast<QAccessibleInterface*>(child))); // not modified
    }
    QWindow* window() const override { return &scene(); }
    QRect rect() const override { return scene().geometry(); }
    QAccessible::Role role() const override { return scene().accessibleRole(); }

    QAccessibleInterface* childAt(int x, int y) const override {
        const auto found = children();
        for (auto child = found.rbegin(); child != found.rend(); ++child) // topmost first
            if ((*child)->rect().contains(x, y))
                return *child;
        return nullptr;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? QGuiApplication::applicationDisplayName() : QString();
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !scene().isVisible();
        return state;
    }

private:
    SceneWindow& scene() const { return *static_cast<SceneWindow*>(object()); }

    QList<QAccessibleInterface*> children() const {
        QList<QAccessibleInterface*> found;
        collect(scene().root(), found);
        return found;
    }

    /// All available items, in stacking order.
    static void collect(const Item& from, QList<QAccessibleInterface*>& found) {
        for (auto* item : from.childItems()) {
            if (!item->isVisible())
                continue;
            const auto* accessible = dynamic_cast<Accessible*>(item);
            if (accessible && accessible->isAvailable())
                found.push_back(QAccessible::queryAccessibleInterface(item));
            collect(*item, found);
        }
    }
};

QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object) {
    if (auto* item = qobject_cast<Item*>(object)) {
        auto* accessible = dynamic_cast<Accessible*>(item);
        return accessible ? new AccessibleItem(*item, *accessible) : nullptr;
    }
    auto* window = qobject_cast<SceneWindow*>(object);
    return window ? new AccessibleWindow(*window) : nullptr;
}

} // namespace

void installAccessibility() {
    QAccessible::installFactory(makeAccessible);
}

void announce(QObject& object, QAccessible::Event what) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&object, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace brellowind
