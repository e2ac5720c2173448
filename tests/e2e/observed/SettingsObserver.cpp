// SPDX-License-Identifier: MIT

#include "SettingsObserver.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QVariant>
#include <functional>

namespace brellowind::test {
namespace {

const QQuickView* settingsWindow() {
    for (auto* window : QGuiApplication::allWindows())
        if (const auto* view = qobject_cast<const QQuickView*>(window);
            view && view->source().fileName() == QStringLiteral("SettingsView.qml"))
            return view;
    return nullptr;
}

/// Calls `visit` for all visible items, parents first, until it returns true.
bool visitVisible(QQuickItem* item, const std::function<bool(QQuickItem*)>& visit) {
    if (!item->isVisible())
        return false;
    if (visit(item))
        return true;
    for (auto* child : item->childItems())
        if (visitVisible(child, visit))
            return true;
    return false;
}

void visitVisible(const std::function<bool(QQuickItem*)>& visit) {
    if (const auto* window = settingsWindow(); window && window->isVisible())
        visitVisible(window->contentItem(), visit);
}

QString textOf(const QQuickItem* item) {
    return item->property("text").toString();
}

QString accessibleName(QQuickItem* item) {
    auto* accessible = QAccessible::queryAccessibleInterface(item);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

const QQuickItem* find(const QString& element) {
    const QQuickItem* found = nullptr;
    visitVisible([&](QQuickItem* item) {
        if (textOf(item) == element || accessibleName(item) == element)
            found = item;
        return found != nullptr;
    });
    return found;
}

} // namespace

bool SettingsObserver::listen() {
    return QDBusConnection::sessionBus().registerObject(QStringLiteral("/settings"), this,
                                                        QDBusConnection::ExportScriptableContents);
}

bool SettingsObserver::Exists() const {
    return settingsWindow() != nullptr;
}

uint SettingsObserver::Window() const {
    const auto* window = settingsWindow();
    return window && window->isVisible() ? static_cast<uint>(window->winId()) : 0;
}

bool SettingsObserver::IsActive() const {
    const auto* window = settingsWindow();
    return window && window->isActive();
}

QStringList SettingsObserver::Texts() const {
    QStringList texts;
    visitVisible([&](const QQuickItem* item) {
        if (const QString text = textOf(item); !text.isEmpty())
            texts.append(text);
        return false;
    });
    return texts;
}

QDBusVariant SettingsObserver::Property(const QString& element, const QString& property) const {
    const auto* item = find(element);
    const QVariant value = item ? item->property(property.toUtf8().constData()) : QVariant();
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

QList<double> SettingsObserver::Rectangle(const QString& element) const {
    const auto* item = find(element);
    if (!item)
        return {};
    const QRectF rect = item->mapRectToScene(item->boundingRect());
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

} // namespace brellowind::test
