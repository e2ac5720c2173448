// Saves pictures of the settings window in all its states:
//   QT_SCALE_FACTOR=2 brellowind-settings-pictures FOLDER
#include "settings/SettingsRouter.h"
#include "settings/window/SettingsWindow.h"
#include "support/TestMachine.h"

#include <QCoreApplication>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace brellowind {
namespace {

using platform::HttpResponse;

void save(QQuickWindow& window, const QString& folder, const char* name) {
    QCoreApplication::processEvents();
    const QImage picture = window.grabWindow();
    const QString path = QStringLiteral("%1/%2@%3x.png")
                             .arg(folder, QString::fromLatin1(name))
                             .arg(window.effectiveDevicePixelRatio());
    if (!picture.save(path))
        qFatal("cannot write %s", qPrintable(path));
}

void focus(const QQuickWindow& window, const char* name) {
    auto* item = window.contentItem()->findChild<QQuickItem*>(QString::fromLatin1(name));
    item->forceActiveFocus(Qt::TabFocusReason);
}

void savePictures(const QString& folder) {
    test::TestMachine machine;
    SettingsWindow settings;
    settings.open();
    auto& window = *settings.window();
    const auto answer = [&](platform::HttpResult result) {
        machine.http.answer(machine.http.requests.size() - 1, std::move(result));
        machine.mainLoop.runTurns();
    };

    save(window, folder, "idle");
    machine.mainLoop.runTurns();
    save(window, folder, "checking");
    answer(HttpResponse{200, R"({"version": "1.0", "url": "a:b"})"});
    save(window, folder, "up-to-date");
    focus(window, "updateButton");
    save(window, folder, "focus-button");
    focus(window, "launchAtLogin");
    save(window, folder, "focus-switch");
    focus(window, "generalTab");
    save(window, folder, "focus-tab");
    window.contentItem()->forceActiveFocus(Qt::OtherFocusReason);

    machine.loginItem.current = platform::LoginItem::Status::enabled;
    settings.window()->close();
    machine.mainLoop.runTurns();
    settings.open();
    machine.mainLoop.runTurns();
    answer(HttpResponse{200, R"({"version": "1.2", "url": "a:b"})"});
    save(*settings.window(), folder, "available");

    settings.window()->close();
    machine.mainLoop.runTurns();
    settings.open();
    machine.mainLoop.runTurns();
    answer(platform::TransportError{"no route"});
    save(*settings.window(), folder, "failed");

    SettingsRouter::shared().setSelectedTab(SettingsTab::about);
    machine.mainLoop.runTurns();
    save(*settings.window(), folder, "about");
    focus(*settings.window(), "websiteButton");
    save(*settings.window(), folder, "focus-link");
}

} // namespace
} // namespace brellowind

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    if (argc < 2)
        qFatal("usage: brellowind-settings-pictures FOLDER [FONT]");
    if (argc > 2)
        QGuiApplication::setFont(QFont(QString::fromLocal8Bit(argv[2])));
    brellowind::savePictures(QString::fromLocal8Bit(argv[1]));
}
