// SPDX-License-Identifier: MIT

#include "PillObserver.h"

#include "views/NotchRootView.h"
#include "views/drawing/LyricText.h"
#include "views/scene/SceneWindow.h"
#include "views/scene/TapArea.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QMap>
#include <utility>

namespace brellowind::test {
namespace {

const auto lyricLine = QStringLiteral("lyricLine");

QList<double> numbers(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QList<double> rectangle(const Item* item) {
    return item ? numbers(item->mapRectToScene(item->boundingRect())) : QList<double>();
}

/// Exposed only after it has grabbed pointer and keyboard.
const SceneWindow* openMenu() {
    for (const auto* window : QGuiApplication::allWindows())
        if (window->objectName() == QStringLiteral("menu") && window->isExposed())
            return qobject_cast<const SceneWindow*>(window);
    return nullptr;
}

} // namespace

PillObserver::PillObserver(const SceneWindow& window, NotchRootView& view)
    : window_(window), view_(view), text_(Text(lyricLine)),
      redraws_(view.onRedraw([this] { redraw(); })) {}

/// Registered after the pill's own observer.
void PillObserver::redraw() {
    const QString text = Text(lyricLine);
    if (text == std::exchange(text_, text))
        return;
    Q_EMIT TextChanged(text);
}

bool PillObserver::listen() {
    auto bus = QDBusConnection::sessionBus();
    return item(lyricLine) &&
           bus.registerObject(QStringLiteral("/pill"), this,
                              QDBusConnection::ExportScriptableContents) &&
           bus.registerService(QStringLiteral("org.brellowind.Observed"));
}

QString PillObserver::Text(const QString& line) const {
    const auto* text = qobject_cast<const LyricText*>(item(line));
    return text ? text->text() : QString();
}

bool PillObserver::Form(const QString& name) const {
    const auto& form = view_.form();
    return QMap<QString, bool>{
        {QStringLiteral("isPlaying"), view_.nowPlaying().isPlaying.get()},
        {QStringLiteral("isMinimized"), form.isMinimized},
        {QStringLiteral("isArtExpanded"), form.isArtExpanded},
        {QStringLiteral("hovered"), form.hovered},
        {QStringLiteral("coverHovered"), form.coverHovered},
        {QStringLiteral("grabberHovered"), form.grabberHovered},
        {QStringLiteral("waveformHovered"), form.waveformHovered},
    }[name];
}

QList<double> PillObserver::Size(const QString& item) const {
    const auto* found = this->item(item);
    return found ? QList<double>{found->width(), found->height()} : QList<double>();
}

QList<double> PillObserver::Rectangle(const QString& item) const {
    return rectangle(this->item(item));
}

uint PillObserver::Window() const {
    return static_cast<uint>(window_.winId());
}

uint PillObserver::Menu() const {
    const auto* menu = openMenu();
    return menu ? static_cast<uint>(menu->winId()) : 0;
}

QList<double> PillObserver::MenuPlace() const {
    const auto* menu = openMenu();
    return menu ? numbers(menu->geometry()) : QList<double>();
}

QList<double> PillObserver::MenuEntry(const QString& text) const {
    const auto* menu = openMenu();
    if (!menu)
        return {};
    for (const auto* entry : menu->root().findChildren<TapArea*>())
        if (entry->accessibleName() == text)
            return rectangle(entry);
    return {};
}

const Item* PillObserver::item(const QString& name) const {
    return window_.root().findChild<Item*>(name);
}

} // namespace brellowind::test
