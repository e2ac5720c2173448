#include "PillObserver.h"

#include <QDBusConnection>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariant>

namespace brellowind::test {

PillObserver::PillObserver(const QQuickWindow& window)
    : line_(window.contentItem()->findChild<QObject*>(QStringLiteral("lyricLine"))) {
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

} // namespace brellowind::test
