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
    explicit ImpatientHttpClient(platform::MainLoop& mainLoop)
        : HttpClient(mainLoop), client_(mainLoop) {}

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

/// What a test needs of a machine whose main loop, network and log are real. Lyrics and feed are
/// looked for at `origin`.
struct NetworkMachine {
    explicit NetworkMachine(const QString& origin) {
        constants.lyricsOrigin = origin.toStdString();
        constants.updateFeedURL = constants.lyricsOrigin + "/latest.json";
    }

    TestMachine standIns;
    platform::ProductConstants constants = standIns.constants;
    platform::QtMainLoop mainLoop;
    platform::StderrLog log;
    ImpatientHttpClient http{mainLoop};
    TaskRunner tasks{mainLoop};
};

} // namespace brellowind::test
