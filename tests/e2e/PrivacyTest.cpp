// SPDX-License-Identifier: MIT

#include "e2e/PrivacyFixture.h"

#include <QSet>
#include <QUrlQuery>

// The requests and the output of the program during a simulated day.
namespace brellowind::test {
namespace {

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

} // namespace
} // namespace brellowind::test
