#include "e2e/ShellFixture.h"
#include "e2e/SystemCalls.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QUrlQuery>

// What the program touches, asks for and says in the course of a whole day of a person who listens.
namespace brellowind::test {
namespace {

const auto secret = QStringLiteral("Hushed");

QByteArray png() {
    QImage image(64, 64, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, "png");
    return bytes.data();
}

QString songTitle(int number) {
    return QStringLiteral("%1 Title %2").arg(secret).arg(number);
}

QString songLine(int number) {
    return QStringLiteral("%1 Line %2").arg(secret).arg(number);
}

/// A player, a service that would like to know more than it is told, and a person who does
/// everything once.
class Privacy : public ShellOnDesktop {
protected:
    Privacy() {
        service.handler = [this](const demo::Exchange& exchange) {
            requests.append(exchange);
            answer(exchange);
        };
    }

    /// Four songs, of which the service fails two, the settings, a check, and the end.
    void liveADay(const QStringList& launcher = {}) {
        player.emplace(desktop.bus.connection());
        play(1);
        auto& started = program.emplace(desktop, service.origin(), environment, launcher);
        EXPECT_TRUE(started.shows(songLine(1)));
        play(2);
        EXPECT_TRUE(started.shows(songLine(2)));
        EXPECT_TRUE(waitUntil([this] { return asked("/moved/2.png"); }));
        play(failsByStatus);
        EXPECT_TRUE(started.shows(songTitle(failsByStatus)));
        play(failsByDropping);
        EXPECT_TRUE(started.shows(songTitle(failsByDropping)));
        choose("Check for Updates…");
        EXPECT_TRUE(settings().shows(QStringLiteral("Update check failed")));
        press("Launch at Login");
        EXPECT_TRUE(waitUntil([this] { return QFile::exists(loginEntry()); }));
        press("Launch at Login");
        EXPECT_TRUE(waitUntil([this] { return !QFile::exists(loginEntry()); }));
        press("About");
        EXPECT_TRUE(settings().shows(QStringLiteral("Visit our website")));
        person.pressEscape();
        EXPECT_TRUE(settingsAreGone());
        player->setAnswer("error");
        runFor(std::chrono::milliseconds(1500));
        choose("Quit Brellowind");
        EXPECT_EQ(started.process().finish(), 0);
    }

    QString loginEntry() const {
        return desktop.environment().value(QStringLiteral("XDG_CONFIG_HOME")) +
               QStringLiteral("/autostart/brellowind.desktop");
    }

    bool asked(const char* path) const {
        return std::any_of(requests.begin(), requests.end(),
                           [path](const auto& request) { return request.path == path; });
    }

    QList<demo::Exchange> requests;

private:
    static constexpr int failsByStatus = 3;
    static constexpr int failsByDropping = 4;

    void play(int number) {
        auto metadata =
            PlayerProcess::metadata(songTitle(number), secret + QStringLiteral(" Artist"),
                                    secret + QStringLiteral(" Album"), 600000);
        metadata.insert(QStringLiteral("mpris:artUrl"),
                        service.origin() + QStringLiteral("/cover/%1.png").arg(number));
        player->setTrack(metadata);
        player->setStatus("Playing");
    }

    /// With a cookie for whoever takes one.
    void answer(const demo::Exchange& exchange) {
        const QString title = exchange.field(QStringLiteral("track_name"));
        const int number = title.isEmpty() ? exchange.path[7] - '0' : title.back().digitValue();
        if (exchange.path == "/latest.json")
            respond(exchange, "500 Broken", "<html>" + secret.toUtf8());
        else if (exchange.path == "/cover/2.png")
            respond(exchange, "302 Found\r\nLocation: /moved/2.png", "");
        else if (number == failsByStatus)
            respond(exchange, "500 Broken", "<html>" + secret.toUtf8());
        else if (number == failsByDropping)
            exchange.drop();
        else if (exchange.path == "/api/get")
            respond(exchange, "200 Fine",
                    R"({"syncedLyrics":"[00:00.00])" + songLine(number).toUtf8() + R"("})");
        else
            respond(exchange, "200 Fine", png());
    }

    static void respond(const demo::Exchange& exchange, const QByteArray& status,
                        const QByteArray& body) {
        exchange.send("HTTP/1.1 " + status +
                      "\r\nSet-Cookie: who=you; Path=/; Max-Age=100000\r\nContent-Length: " +
                      QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body);
        if (exchange.connection)
            exchange.connection->disconnectFromHost();
    }
};

TEST_F(Privacy, AsksForLyricsCoversAndTheFeedAloneAndSaysNothingOfThePerson) {
    liveADay();
    const QSet<QByteArray> kinds{"/api/get",     "/cover/1.png", "/cover/2.png", "/moved/2.png",
                                 "/cover/3.png", "/cover/4.png", "/latest.json"};
    const QSet<QByteArray> headers{
        "host", "user-agent", "accept-encoding", "accept-language", "connection", "cache-control"};
    QSet<QByteArray> asked;
    for (const auto& request : requests) {
        asked.insert(request.path);
        for (const auto& [name, value] : request.headers) {
            EXPECT_TRUE(headers.contains(name)) << name.constData() << ": " << value.constData();
            EXPECT_FALSE(value.contains(secret.toUtf8())) << value.constData();
        }
        QStringList fields;
        for (const auto& [name, value] : QUrlQuery(QString::fromUtf8(request.query)).queryItems())
            fields.append(name);
        EXPECT_EQ(fields.join(u' '),
                  request.path == "/api/get"
                      ? QStringLiteral("track_name artist_name album_name duration")
                      : QString())
            << request.path.constData();
    }
    EXPECT_EQ(asked, kinds);
}

TEST_F(Privacy, SaysNothingOfWhatIsPlayingEvenWhenEveryWordOfTheToolkitIsHeard) {
    environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*=true"));
    liveADay();
    const QString said =
        program->errors().join(u'\n') + QString::fromUtf8(program->process().remainingOutput());
    EXPECT_TRUE(said.contains(QStringLiteral("Spotify AppleScript error: ")));
    EXPECT_TRUE(said.contains(QStringLiteral("Update check failed: ")));
    EXPECT_TRUE(said.contains(QStringLiteral("qt."))) << "the toolkit says nothing";
    for (const QString& word : {secret, QStringLiteral("127.0.0.1"), QStringLiteral("cover/")})
        for (const QString& line : said.split(u'\n'))
            EXPECT_FALSE(line.contains(word)) << qPrintable(line);
}

/// The calls of the system that matter here, of all threads of whatever is started by it.
QStringList tracer(const QString& traceFile) {
    return {QStringLiteral("strace"), QStringLiteral("-D"),
            QStringLiteral("-f"),     QStringLiteral("-y"),
            QStringLiteral("-s"),     QStringLiteral("4096"),
            QStringLiteral("-e"),     QStringLiteral("trace=%file,%network,execve,execveat"),
            QStringLiteral("-o"),     traceFile};
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(Privacy, TouchesNothingButThePlayerTheServiceTheDisplayAndItsLoginEntry) {
    const QTemporaryDir folder;
    const QString traceFile = folder.filePath(QStringLiteral("trace"));
    demo::Companion probe(QStringLiteral("strace"),
                          {QStringLiteral("-o"), traceFile, QStringLiteral("true")});
    ASSERT_EQ(probe.finish(), 0) << "this machine lets no program be traced, which this test needs";

    liveADay(tracer(traceFile));
    ASSERT_TRUE(waitUntil([&] { return tellsOfExit(contents(traceFile), 0); }));
    const auto calls = systemCalls(contents(traceFile));

    const QString busFile = desktop.bus.address().section(u'=', 1, 1).section(u',', 0, 0);
    const QSet<QString> places{
        QStringLiteral("inet:") + service.origin().mid(7), // lyrics, covers, the feed
        QStringLiteral("unix:@/tmp/.X11-unix/X") + desktop.xServer.display().mid(1),
        QStringLiteral("unix:") + busFile,                  // the session bus: the player
        QStringLiteral("unix:/run/dbus/system_bus_socket"), // whether the session is locked
    };
    for (const QString& place : destinations(calls))
        EXPECT_TRUE(places.contains(place)) << qPrintable(place);
    EXPECT_TRUE(destinations(calls).contains(QStringLiteral("inet:") + service.origin().mid(7)));

    const auto variables = desktop.environment();
    const QString configuration = variables.value(QStringLiteral("XDG_CONFIG_HOME"));
    const QSet<QString> files{
        variables.value(QStringLiteral("XDG_RUNTIME_DIR")), // the toolkit sees that it is there
        configuration,
        configuration + QStringLiteral("/autostart"),
        loginEntry(),
    };
    const QString unfinishedEntry =
        configuration +
        QStringLiteral("/autostart/.brellowind.desktop."); // renamed once it is whole
    for (const QString& path : changedPaths(calls))
        EXPECT_TRUE(files.contains(path) || path.startsWith(unfinishedEntry)) << qPrintable(path);
    EXPECT_TRUE(changedPaths(calls).contains(loginEntry()));

    EXPECT_EQ(programs(calls).size(), 1) << qPrintable(programs(calls).join(u' '));
}

} // namespace
} // namespace brellowind::test
