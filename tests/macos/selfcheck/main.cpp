// SPDX-License-Identifier: MIT

#include "DemoMachine.h"
#include "SongPlayer.h"
#include "WindowReport.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "companion/Companion.h"
#include "service/DemoSong.h"
#include "views/window/PillWindow.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>
#include <chrono>
#include <cstdio>

// Shows the pill for some seconds, on the real window system, with a player of its own and the
// demo's lyrics service. Then it looks at the native window and has a picture taken of the screen.
//   brellowind-selfcheck PICTURE
// Ends with 0 when the window is as it should be. That no picture can be taken is said, and is no
// failure: the system may not allow it.

using namespace brellowind;
using namespace brellowind::selfcheck;

namespace {

/// Long enough for the lyrics to come and the pill to open.
constexpr std::chrono::seconds patience{8};

int complain(const char* message) {
    std::fprintf(stderr, "selfcheck: %s\n", message);
    return 1;
}

int examine(PillWindow& window, const QString& picture) {
    const auto view = static_cast<std::uintptr_t>(window.winId());
    const auto complaints = complaintsAbout(view);
    for (const auto& complaint : complaints)
        complain(complaint.c_str());
    if (QProcess::execute(QStringLiteral("/usr/sbin/screencapture"),
                          {QStringLiteral("-x"), picture}) != 0)
        complain("no picture could be taken");
    std::printf("selfcheck: window %ld, %zu complaints\n", windowNumber(view), complaints.size());
    return complaints.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    auto constants = compiledConstants();
    if (argc != 2)
        return complain("usage: brellowind-selfcheck PICTURE");
    argc = 1;
    const auto machine = platform::makeMachine(argc, argv, constants);
    if (!machine)
        return 1;
    const auto song = demo::DemoSong::load(QStringLiteral(BRELLOWIND_DEMO_SONG));
    if (!song)
        return complain("the demo song is not whole");
    demo::Companion service(QStringLiteral(BRELLOWIND_DEMO_SERVICE),
                            {QStringLiteral(BRELLOWIND_DEMO_SONG)});
    const auto origin = service.readLine().toStdString();
    if (origin.empty())
        return complain("the demo lyrics service did not start");
    constants.lyricsOrigin = origin;

    SongPlayer player(*song, origin + "/cover.png");
    DemoMachine demoMachine(*machine, player);
    BrellowindApp app(demoMachine, constants);
    movePointer(40, 400); // away from the pill
    app.launch();
    int status = 1;
    QTimer::singleShot(patience, qApp, [&] {
        status = examine(app.window(), QString::fromLocal8Bit(argv[1]));
        QCoreApplication::quit();
    });
    machine->run();
    return status;
}
