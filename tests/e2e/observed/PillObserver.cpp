#include "PillObserver.h"

#include "views/NotchRootModel.h"
#include "views/pill/PillMenuEntry.h"
#include "views/scene/SceneWindow.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QVariant>

namespace brellowind::test {
namespace {

QList<double> numbers(const QRectF& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QList<double> rectangle(const Item* item) {
    return item ? numbers(item->mapRectToScene(item->boundingRect())) : QList<double>();
}

/// The bus knows no absent value.
QDBusVariant property(const QObject* object, const QString& name) {
    const QVariant value = object ? object->property(name.toUtf8().constData()) : QVariant();
    return QDBusVariant(value.isValid() ? value : QVariant(QString()));
}

/// Once it is exposed it holds pointer and keyboard as well.
const SceneWindow* openMenu() {
    for (const auto* window : QGuiApplication::allWindows())
        if (window->objectName() == QStringLiteral("menu") && window->isExposed())
            return qobject_cast<const SceneWindow*>(window);
    return nullptr;
}

} // namespace

PillObserver::PillObserver(const SceneWindow& window)
    : window_(window), line_(window.root().findChild<QObject*>(QStringLiteral("lyricLine"))) {
    if (line_)
        connect(line_, SIGNAL(textChanged(QString)), this, SIGNAL(TextChanged(QString)));
}

bool PillObserver::listen() {
    auto bus = QDBusConnection::sessionBus();
    return line_ &&
           bus.registerObject(QStringLiteral("/pill"), this,
                              QDBusConnection::ExportScriptableContents) &&
           bus.registerService(QStringLiteral("org.brellowind.Observed"));
}

QString PillObserver::Text() const {
    return line_->property("text").toString();
}

QDBusVariant PillObserver::Form(const QString& property) const {
    return test::property(window_.findChild<NotchRootModel*>(), property);
}

QDBusVariant PillObserver::Property(const QString& item, const QString& property) const {
    return test::property(this->item(item), property);
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

QList<double> PillObserver::MenuEntry(const QString& text) const {
    const auto* menu = openMenu();
    if (!menu)
        return {};
    for (const auto* entry : menu->root().findChildren<PillMenuEntry*>())
        if (entry->text() == text)
            return rectangle(entry);
    return {};
}

const Item* PillObserver::item(const QString& name) const {
    return window_.root().findChild<Item*>(name);
}

} // namespace brellowind::test
