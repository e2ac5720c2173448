#include "app/BrellowindApp.h"

#include "app/AppDelegate.h"
#include "app/CompiledConstants.h"
#include "app/SettingsLibrary.h"
#include "platform/Services.h"
#include "platform/linux/FontLookup.h"
#include "platform/linux/MprisPlayer.h"
#include "platform/linux/ScreenLock.h"
#include "platform/linux/SingleInstance.h"
#include "platform/linux/StderrLog.h"
#include "platform/linux/UnixSignals.h"
#include "platform/linux/XdgLoginItem.h"
#include "platform/linux/desktop/SessionWindowSystem.h"
#include "platform/qt/QtApplication.h"
#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtImageDecoder.h"
#include "platform/qt/QtLinkOpener.h"
#include "platform/qt/QtLocalFiles.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/qt/QtStartEnvironment.h"
#include "platform/qt/SystemClock.h"
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
    explicit Machine(const platform::ProductConstants& productConstants)
        : constants(productConstants) {}

    platform::FontLookup fonts;
    platform::ProductConstants constants;
    platform::QtMainLoop mainLoop;
    platform::SystemClock clock;
    platform::StderrLog log;
    platform::QtHttpClient http;
    platform::QtImageDecoder images{largestArtworkPoints};
    platform::QtLocalFiles files;
    platform::MprisPlayer player{platform::BusConnection(), mprisVocabulary()};
    platform::ScreenLock screenLock{QDBusConnection::sessionBus(), QDBusConnection::systemBus()};
    std::unique_ptr<platform::WindowSystem> windowSystem =
        platform::makeWindowSystem(mainLoop, screenLock);
    platform::QtApplication application;
    platform::QtLinkOpener links;
    platform::XdgLoginItem loginItem = makeLoginItem();
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
                                   .screens = windowSystem->screens(),
                                   .pointer = windowSystem->pointer(),
                                   .application = application,
                                   .links = links,
                                   .loginItem = loginItem,
                                   .constants = constants}};
    platform::UnixSignals signals{[this] { application.terminate(); }};
    SettingsLibrary settings{settingsPath()};
    AppDelegate delegate{*windowSystem, [this] { settings.open(); }};
    platform::SingleInstance instance{QDBusConnection::sessionBus(), windowSystem->sessionName(),
                                      [this] { delegate.rootView().openSettings(); }};
};

void BrellowindApp::prepare() {
    platform::QtStartEnvironment::choose();
#ifdef __GLIBC__
    // What little other threads allocate needs no memory of each thread's own.
    mallopt(M_ARENA_MAX, 1);
    // Covers and other large blocks are given back as they are freed, instead of leaving holes
    // between what stays. Without this the limit would rise to the largest block that was freed.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
#endif
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

std::unique_ptr<QGuiApplication> BrellowindApp::makeApplication(int argc, char** argv) {
    prepare();
    return platform::makeGuiApplication(argc, argv);
}

bool BrellowindApp::claimDisplay() {
    return machine_->instance.claim();
}

BrellowindApp::BrellowindApp(const platform::ProductConstants& constants)
    : machine_(std::make_unique<Machine>(constants)) {}

BrellowindApp::~BrellowindApp() = default;

void BrellowindApp::launch() {
    machine_->fonts.wait();
    machine_->delegate.applicationDidFinishLaunching();
}

NotchRootView& BrellowindApp::rootView() {
    return machine_->delegate.rootView();
}

NotchView& BrellowindApp::window() {
    return machine_->delegate.window();
}

} // namespace brellowind
