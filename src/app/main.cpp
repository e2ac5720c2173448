#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"

#include <QGuiApplication>
#include <algorithm>

int main(int argc, char** argv) {
    argc = std::min(argc, 1); // the program has no command line
    const auto application = brellowind::BrellowindApp::makeApplication(argc, argv);
    if (!application)
        return 1;
    QGuiApplication::setApplicationName(QStringLiteral("Brellowind"));
    // The desktop finds the icon of the settings window through it.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.brellowind.Brellowind"));
    brellowind::BrellowindApp app(brellowind::compiledConstants());
    if (!app.claimDisplay())
        return 0;
    app.launch();
    return QGuiApplication::exec();
}
