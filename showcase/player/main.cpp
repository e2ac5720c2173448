// SPDX-License-Identifier: MIT

#include "DemoPlayer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <cstdio>

namespace {

int complain(const char* message) {
    std::fprintf(stderr, "brellowind-demo-player: %s\n", message);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Owns a player's name on the session bus and pretends to play a track."));
    parser.addHelpOption();
    parser.addOptions({
        {QStringLiteral("name"), QStringLiteral("Bus name after org.mpris.MediaPlayer2."),
         QStringLiteral("name"), QStringLiteral("spotify")},
        {QStringLiteral("title"), QStringLiteral("Title of the track; without one it stands still"),
         QStringLiteral("text")},
        {QStringLiteral("artist"), QStringLiteral("Artist of the track"), QStringLiteral("text")},
        {QStringLiteral("album"), QStringLiteral("Album of the track"), QStringLiteral("text")},
        {QStringLiteral("length"), QStringLiteral("Length of the track"), QStringLiteral("ms"),
         QStringLiteral("0")},
        {QStringLiteral("artwork"), QStringLiteral("Location of the cover"), QStringLiteral("url")},
        {QStringLiteral("loop"), QStringLiteral("Begin again when the track has ended")},
    });
    parser.process(application);
    bool lengthIsNumber = false;
    const qulonglong lengthMs = parser.value(QStringLiteral("length")).toULongLong(&lengthIsNumber);
    if (!lengthIsNumber || !parser.positionalArguments().isEmpty())
        return complain(
            "the length is a whole number of milliseconds, and nothing follows the options");

    DemoPlayer player;
    player.loops = parser.isSet(QStringLiteral("loop"));
    if (parser.isSet(QStringLiteral("title"))) {
        player.setTrack({
            {QStringLiteral("mpris:trackid"),
             QVariant::fromValue(QDBusObjectPath(QStringLiteral("/com/spotify/track/demo")))},
            {QStringLiteral("mpris:length"), lengthMs * 1000},
            {QStringLiteral("mpris:artUrl"), parser.value(QStringLiteral("artwork"))},
            {QStringLiteral("xesam:title"), parser.value(QStringLiteral("title"))},
            {QStringLiteral("xesam:artist"), QStringList{parser.value(QStringLiteral("artist"))}},
            {QStringLiteral("xesam:album"), parser.value(QStringLiteral("album"))},
        });
        player.setPlaying(true);
    }
    auto bus = QDBusConnection::sessionBus();
    if (!bus.registerVirtualObject(QStringLiteral("/org/mpris/MediaPlayer2"), &player))
        return complain("there is no session bus");
    const QString name =
        QStringLiteral("org.mpris.MediaPlayer2.") + parser.value(QStringLiteral("name"));
    if (!bus.registerService(name))
        return complain("the name on the bus is taken");
    return QCoreApplication::exec();
}
