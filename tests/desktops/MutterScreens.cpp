// SPDX-License-Identifier: MIT

#include "desktops/MutterScreens.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <algorithm>

namespace brellowind::test {
namespace {

const auto service = QStringLiteral("org.gnome.Mutter.DisplayConfig");
const auto path = QStringLiteral("/org/gnome/Mutter/DisplayConfig");

/// The names of a monitor; the first is the connector.
QString readConnector(const QDBusArgument& from) {
    QString connector, vendor, product, serial;
    from.beginStructure();
    from >> connector >> vendor >> product >> serial;
    from.endStructure();
    return connector;
}

/// Monitors have a single mode here.
MutterScreen readMonitor(const QDBusArgument& from) {
    MutterScreen screen;
    from.beginStructure();
    screen.name = readConnector(from);
    from.beginArray();
    while (!from.atEnd()) {
        double refresh = 0, preferredScale = 0;
        QList<double> scales;
        QVariantMap properties;
        from.beginStructure();
        from >> screen.mode >> screen.pixels.rwidth() >> screen.pixels.rheight() >> refresh >>
            preferredScale >> scales >> properties;
        from.endStructure();
    }
    from.endArray();
    QVariantMap properties;
    from >> properties;
    from.endStructure();
    return screen;
}

/// A logical monitor: position, scale and monitors.
void readLogicalMonitor(const QDBusArgument& from, QList<MutterScreen>& screens) {
    QPoint position;
    double scale = 1;
    uint transform = 0;
    bool isPrimary = false;
    QVariantMap properties;
    from.beginStructure();
    from >> position.rx() >> position.ry() >> scale >> transform >> isPrimary;
    from.beginArray();
    while (!from.atEnd()) {
        const QString connector = readConnector(from);
        for (auto& screen : screens)
            if (screen.name == connector) {
                screen.position = position;
                screen.scale = scale;
            }
    }
    from.endArray();
    from >> properties;
    from.endStructure();
}

} // namespace

QList<MutterScreen> MutterScreens::all() {
    const auto reply = session_.bus().call(
        QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetCurrentState")));
    if (reply.type() != QDBusMessage::ReplyMessage)
        throw DesktopFailure(reply.errorMessage());
    serial_ = reply.arguments().value(0).toUInt();
    QList<MutterScreen> screens;
    const auto monitors = reply.arguments().value(1).value<QDBusArgument>();
    monitors.beginArray();
    while (!monitors.atEnd())
        screens.append(readMonitor(monitors));
    const auto logicalMonitors = reply.arguments().value(2).value<QDBusArgument>();
    logicalMonitors.beginArray();
    while (!logicalMonitors.atEnd())
        readLogicalMonitor(logicalMonitors, screens);
    std::ranges::sort(screens, {}, &MutterScreen::name);
    return screens;
}

void MutterScreens::apply(const QList<MutterScreen>& screens) {
    QStringList logicalMonitors;
    for (const auto& screen : screens)
        logicalMonitors.append(
            QStringLiteral("(%1, %2, %3, 0, %4, [('%5', '%6', {})])")
                .arg(screen.position.x())
                .arg(screen.position.y())
                .arg(screen.scale, 0, 'f', 6)
                .arg(logicalMonitors.isEmpty() ? QStringLiteral("true") : QStringLiteral("false"))
                .arg(screen.name, screen.mode));
    session_.run(QStringLiteral("gdbus"),
                 {QStringLiteral("call"), QStringLiteral("--session"), QStringLiteral("--dest"),
                  service, QStringLiteral("--object-path"), path, QStringLiteral("--method"),
                  service + QStringLiteral(".ApplyMonitorsConfig"), QString::number(serial_),
                  QStringLiteral("1"),
                  QStringLiteral("[%1]").arg(logicalMonitors.join(QLatin1Char(','))),
                  QStringLiteral("{}")});
}

} // namespace brellowind::test
