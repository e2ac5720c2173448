// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"
#include "platform/Images.h"
#include "platform/LinkOpener.h"
#include "platform/LocalFiles.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/ProductConstants.h"
#include "platform/TaskRunner.h"
#include "support/FakeMainLoop.h"
#include "support/FakePlayer.h"
#include "support/FakePointer.h"
#include "support/FakeScreens.h"

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brellowind::test {

/// A wall clock that runs with the fake main loop and can be changed.
class FakeClock {
public:
    using Time = std::chrono::system_clock::time_point;

    explicit FakeClock(const FakeMainLoop& loop) : loop_(loop) {}

    Time now() const { return start_ + loop_.elapsed() + shift; }

    std::chrono::milliseconds shift{0};

private:
    const FakeMainLoop& loop_;
    Time start_{std::chrono::hours(24 * 365 * 50)};
};

class FakeLog final : public platform::Log {
public:
    void write(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

/// Holds every request until the test answers it.
class FakeHttpClient final : public platform::HttpClient {
public:
    using platform::HttpClient::HttpClient;

    struct Pending {
        platform::HttpRequest request;
        Completion completion;
        bool aborted = false;

        Pending(platform::HttpRequest request_, Completion completion_)
            : request(std::move(request_)), completion(std::move(completion_)) {}
    };

    std::unique_ptr<platform::Transfer> send(const platform::HttpRequest& request,
                                             Completion completion) override;

    /// Completes the transfer of the `index`-th request.
    void answer(std::size_t index, platform::HttpResult result);

    /// The number of open requests.
    std::size_t pending() const;

    std::vector<std::shared_ptr<Pending>> requests;
};

/// Records the opened links.
class FakeLinkOpener final : public platform::LinkOpener {
public:
    bool open(std::string_view url) override {
        opened.emplace_back(url);
        return opens;
    }

    bool opens = true;
    std::vector<std::string> opened;
};

/// A login item whose operations succeed unless the test sets a failure.
class FakeLoginItem final : public platform::LoginItem {
public:
    Status status() override { return current; }
    std::optional<std::string> registerItem() override {
        return attempt("register", registrationError, Status::enabled);
    }
    std::optional<std::string> unregisterItem() override {
        return attempt("unregister", unregistrationError, Status::notRegistered);
    }

    Status current = Status::notRegistered;
    std::optional<std::string> registrationError;
    std::optional<std::string> unregistrationError;
    std::vector<std::string> attempts; ///< "register" and "unregister", in order

private:
    std::optional<std::string> attempt(std::string_view name,
                                       const std::optional<std::string>& error, Status outcome);
};

/// An image that stores its encoded bytes.
class FakeImage final : public platform::Image {
public:
    explicit FakeImage(std::string_view bytes_) : bytes(bytes_) {}

    const std::string bytes;
};

/// Decodes all data that begins with "image".
class FakeImageDecoder final : public platform::ImageDecoder {
public:
    std::shared_ptr<const platform::Image> decode(std::string_view bytes,
                                                  int /*largestPoints*/) override {
        return bytes.starts_with("image") ? std::make_shared<FakeImage>(bytes) : nullptr;
    }
};

/// Files in memory, by their URLs.
class FakeLocalFiles final : public platform::LocalFiles {
public:
    std::optional<std::string> read(std::string_view url, std::size_t maximumBytes) override {
        const auto file = contents.find(std::string(url));
        if (file == contents.end() || file->second.size() > maximumBytes)
            return std::nullopt;
        return file->second;
    }

    std::map<std::string, std::string> contents;
};

/// The constants of a build without addresses.
inline platform::ProductConstants constantsWithoutAddresses() {
    platform::ProductConstants constants;
    constants.version = "1.0";
    return constants;
}

/// A fake machine.
struct TestMachine {
    FakeMainLoop mainLoop;
    TaskRunner tasks{mainLoop};
    FakeClock clock{mainLoop};
    FakeLog log;
    FakeHttpClient http{mainLoop};
    FakeImageDecoder images;
    FakeLocalFiles files;
    FakePlayer player{mainLoop};
    FakeScreens screens; ///< none at first
    FakePointer pointer;
    FakeLinkOpener links;
    FakeLoginItem loginItem;
    platform::ProductConstants constants{
        .version = "1.0",
        .lyricsOrigin = "https://lyrics.example",
        .websiteURL = "https://brellowind.example",
        .socialURL = "https://social.example/brellowind",
        .privacyPolicyURL = "https://brellowind.example/privacy",
        .termsURL = "https://brellowind.example/terms",
        .feedbackEmail = "feedback@brellowind.example",
        .updateFeedURL = "https://brellowind.example/latest.json",
        .legalNotice = "© brellowind.example",
        .mprisPlayers = {"spotify"},
    };
};

} // namespace brellowind::test
