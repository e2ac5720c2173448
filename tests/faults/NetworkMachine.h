// SPDX-License-Identifier: MIT

#pragma once

#include "platform/qt/QtHttpClient.h"
#include "platform/qt/QtMainLoop.h"
#include "platform/unix/StderrLog.h"
#include "support/TestMachine.h"

#include <QString>
#include <algorithm>

namespace brellowind::test {

/// The real HTTP client with a short timeout.
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

/// A machine with real main loop, network and log. Lyrics and feed are at `origin`.
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
