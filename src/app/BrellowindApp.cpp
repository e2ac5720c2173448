#include "app/BrellowindApp.h"

#include "app/AppDelegate.h"
#include "app/CompiledConstants.h"
#include "app/SettingsLibrary.h"
#include "platform/Services.h"
#include "platform/linux/MprisPlayer.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/XdgLoginItem.h"
#include "platform/linux/screens/QtScreens.h"
#include "platform/linux/x11/X11Pointer.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtImageDecoder.h"
#include "platform/qt/QtLinkOpener.h"
#include "platform/qt/QtLocalFiles.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtStartEnvironment.h"
#include "platform/qt/SystemClock.h"
#include "platform/unix/StderrLog.h"
#include "platform/unix/UnixSignals.h"
#include "playback/SpotifyBridge.h"
#include "views/NotchRootView.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QStandardPaths>
#include <cstdlib>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sstream>
#include <utility>

namespace brellowind {
namespace {

/// The side of the enlarged artwork.
constexpr int largestArtworkPoints = 320;

platform::XdgLoginItem makeLoginItem() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {folder.toStdString(), QCoreApplication::applicationFilePath().toStdString(),
            qEnvironmentVariable("PATH").toStdString()};
}

std::string settingsPath() {
    return QCoreApplication::applicationDirPath().toStdString() + '/' + settingsLibrary;
}

platform::MprisVocabulary mprisVocabulary() {
    platform::MprisVocabulary vocabulary{
        .bundleIdentifier = std::string(SpotifyBridge::bundleIdentifier),
        .readOutScript = std::string(SpotifyBridge::readOutScript),
        .playPauseScript = std::string(SpotifyBridge::playPauseScript),
        .players = {},
    };
    std::istringstream names(mprisPlayers);
    for (std::string name; std::getline(names, name, ';');)
        vocabulary.players.push_back(name);
    return vocabulary;
}

} // namespace

/// Destroyed from the bottom up: suspended tasks go before the services that they wait for.
struct BrellowindApp::Machine {
    Machine(const platform::ProductConstants& productConstants, QProcessEnvironment environment)
        : constants(productConstants), links(std::move(environment)) {}

    platform::ProductConstants constants;
    platform::QtMainLoop mainLoop;
    platform::SystemClock clock;
    platform::StderrLog log;
    platform::QtHttpClient http;
    platform::QtImageDecoder images{largestArtworkPoints};
    platform::QtLocalFiles files;
    platform::MprisPlayer player{platform::BusConnection(), mprisVocabulary()};
    platform::QtScreens screens{mainLoop};
    platform::X11Pointer pointer{mainLoop};
    platform::QtApplication application;
    platform::QtLinkOpener links;
    platform::XdgLoginItem loginItem = makeLoginItem();
    platform::ScreenLock screenLock{QDBusConnection::sessionBus(), QDBusConnection::systemBus()};
    TaskRunner tasks{mainLoop};
    platform::ServicesScope scope{{.mainLoop = mainLoop,
                                   .tasks = tasks,
                                   .clock = clock,
                                   .log = log,
                                   .http = http,
                                   .images = images,
                                   .files = files,
                                   .scripting = player,
                                   .runningApplications = player,
                                   .screens = screens,
                                   .pointer = pointer,
                                   .application = application,
                                   .links = links,
                                   .loginItem = loginItem,
                                   .constants = constants}};
    platform::UnixSignals signals{[this] { application.terminate(); }};
    SettingsLibrary settings{settingsPath()};
    AppDelegate delegate{screenLock, [this] { settings.open(); }};
    platform::SingleInstance instance{QDBusConnection::sessionBus(),
                                      qEnvironmentVariable("DISPLAY"),
                                      [this] { delegate.rootView().openSettings(); }};
};

QProcessEnvironment BrellowindApp::prepare() {
    auto environment = platform::QtStartEnvironment::choose();
#ifdef __GLIBC__
    // What little other threads allocate needs no memory of each thread's own.
    mallopt(M_ARENA_MAX, 1);
    // Covers and other large blocks are given back as they are freed, instead of leaving holes
    // between what stays. Without this the limit would rise to the largest block that was freed.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    QGuiApplication::setQuitOnLastWindowClosed(false);
    return environment;
}

bool BrellowindApp::claimDisplay() {
    return machine_->instance.claim();
}

BrellowindApp::BrellowindApp(const platform::ProductConstants& constants,
                             QProcessEnvironment environment)
    : machine_(std::make_unique<Machine>(constants, std::move(environment))) {}

BrellowindApp::~BrellowindApp() = default;

void BrellowindApp::launch() {
    machine_->delegate.applicationDidFinishLaunching();
}

NotchRootView& BrellowindApp::rootView() {
    return machine_->delegate.rootView();
}

NotchView& BrellowindApp::window() {
    return machine_->delegate.window();
}

} // namespace brellowind
