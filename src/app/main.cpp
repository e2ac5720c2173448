#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"

#include <QGuiApplication>
#include <utility>

int main(int argc, char** argv) {
    argc = 1; // the program has no command line
    auto environment = brellowind::BrellowindApp::prepare();
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Brellowind"));
    // The desktop finds the icon of the settings window through it.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.brellowind.Brellowind"));
    brellowind::BrellowindApp app(brellowind::compiledConstants(), std::move(environment));
    if (!app.claimDisplay())
        return 0;
    app.launch();
    return QGuiApplication::exec();
}
