// SPDX-License-Identifier: MIT

#include "Backdrop.h"
#include "Recorder.h"
#include "app/BrellowindApp.h"
#include "app/CompiledConstants.h"
#include "companion/Companion.h"
#include "service/DemoSong.h"
#include "views/NotchRootView.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

using namespace brellowind;
using namespace brellowind::demo;

namespace {

const auto secondsOption = QStringLiteral("seconds");
const auto picturesOption = QStringLiteral("pictures");

/// Time to see the pill without music.
constexpr std::chrono::milliseconds silence{1500};

/// When the artwork panel is open, in the song's time.
constexpr std::chrono::milliseconds artworkOpens{16000};
constexpr std::chrono::milliseconds artworkCloses{22500};

int complain(const char* message) {
    std::fprintf(stderr, "brellowind-demo: %s\n", message);
    return 1;
}

QStringList playerArguments(const DemoSong& song, const QString& origin) {
    return {QStringLiteral("--title"),   song.title,
            QStringLiteral("--artist"),  song.artist,
            QStringLiteral("--album"),   song.album,
            QStringLiteral("--length"),  QString::number(song.durationMs),
            QStringLiteral("--artwork"), origin + QStringLiteral("/cover.png"),
            QStringLiteral("--loop")};
}

} // namespace

int main(int argc, char** argv) {
    auto constants = compiledConstants();
    const auto machine = platform::makeMachine(argc, argv, constants);
    if (!machine)
        return 1;
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the pill singing a built-in song."));
    parser.addHelpOption();
    parser.addOptions({{secondsOption, QStringLiteral("End after N seconds"), QStringLiteral("N")},
                       {picturesOption, QStringLiteral("Save pictures into a folder"),
                        QStringLiteral("folder")}});
    parser.process(*qApp);
    bool isNumber = true;
    const int seconds =
        parser.isSet(secondsOption) ? parser.value(secondsOption).toInt(&isNumber) : 0;
    if (!isNumber || seconds < 0 || (parser.isSet(secondsOption) && seconds == 0))
        return complain("--seconds takes a whole number greater than 0");
    if (!parser.positionalArguments().isEmpty())
        return complain("nothing follows the options");

    const auto song = DemoSong::load(QStringLiteral(BRELLOWIND_DEMO_SONG));
    if (!song)
        return complain("the demo song is not whole");
    Companion service(QStringLiteral(BRELLOWIND_DEMO_SERVICE),
                      {QStringLiteral(BRELLOWIND_DEMO_SONG)});
    const QString origin = service.readLine();
    if (origin.isEmpty())
        return complain("the demo lyrics service did not start");

    constants.lyricsOrigin = origin.toStdString();
    constants.updateFeedURL = constants.lyricsOrigin + "/latest.json";
    constants.websiteURL = constants.lyricsOrigin + "/website";
    constants.socialURL = constants.lyricsOrigin + "/social";
    constants.privacyPolicyURL = constants.lyricsOrigin + "/privacy";
    constants.termsURL = constants.lyricsOrigin + "/terms";
    constants.feedbackEmail = "feedback@brellowind.example";
    constants.legalNotice = "© brellowind.example";
    BrellowindApp app(*machine, constants);
    Recorder recorder(app);
    std::optional<Backdrop> backdrop;
    if (parser.isSet(picturesOption)) {
        if (!recorder.savePictures(parser.value(picturesOption)))
            return complain("the folder for the pictures cannot be written");
        backdrop.emplace();
        backdrop->show();
    }
    app.launch();

    std::unique_ptr<Companion> player;
    QTimer::singleShot(silence, qApp, [&] {
        player = std::make_unique<Companion>(QStringLiteral(BRELLOWIND_DEMO_PLAYER),
                                             playerArguments(*song, origin));
    });
    if (seconds > 0)
        QTimer::singleShot(std::chrono::seconds(seconds), qApp, &QGuiApplication::quit);
    if (backdrop) { // headless
        const auto press = [&](std::chrono::milliseconds songTime, auto what) {
            QTimer::singleShot(silence + songTime, qApp,
                               [&app, what] { (app.rootView().*what)(); });
        };
        press(artworkOpens, &NotchRootView::tapCover);
        press(artworkCloses, &NotchRootView::tapArtwork);
    }
    const int status = machine->run();
    if (recorder.failed())
        return complain("a picture could not be saved");
    return status;
}
