#pragma once

#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/unix/StderrLog.h"
#include "support/TestMachine.h"

#include <QString>
#include <algorithm>

namespace brellowind::test {

/// The real HTTP client, which waits for an answer no longer than a test has time for.
class ImpatientHttpClient final : public platform::HttpClient {
public:
    std::unique_ptr<platform::Transfer> send(const platform::HttpRequest& request,
                                             Completion completion) override {
        auto hurried = request;
        asked = request.timeout;
        hurried.timeout = std::min(request.timeout, patience);
        return client_.send(hurried, std::move(completion));
    }

    std::chrono::milliseconds patience = std::chrono::seconds(60);
    std::chrono::milliseconds asked{0}; ///< of the last request

private:
    platform::QtHttpClient client_;
};

/// The machine of a test whose main loop, network and log are real; the rest are stand-ins. Lyrics
/// and feed are looked for at `origin`.
class NetworkMachine {
public:
    explicit NetworkMachine(const QString& origin)
        : constants(standIns.constants), scope_(services(origin, standIns.images)) {}

    /// With a decoder of images that is real, too.
    NetworkMachine(const QString& origin, platform::ImageDecoder& images)
        : constants(standIns.constants), scope_(services(origin, images)) {}

    TestMachine standIns;
    platform::ProductConstants constants;
    platform::QtMainLoop mainLoop;
    platform::StderrLog log;
    ImpatientHttpClient http;
    TaskRunner tasks{mainLoop};

private:
    platform::Services services(const QString& origin, platform::ImageDecoder& images) {
        constants.lyricsOrigin = origin.toStdString();
        constants.updateFeedURL = constants.lyricsOrigin + "/latest.json";
        return {.mainLoop = mainLoop,
                .tasks = tasks,
                .clock = standIns.clock,
                .log = log,
                .http = http,
                .images = images,
                .files = standIns.files,
                .scripting = standIns.scripting,
                .runningApplications = standIns.runningApplications,
                .screens = standIns.screens,
                .pointer = standIns.pointer,
                .application = standIns.application,
                .links = standIns.links,
                .loginItem = standIns.loginItem,
                .constants = constants};
    }

    platform::ServicesScope scope_;
};

} // namespace brellowind::test
