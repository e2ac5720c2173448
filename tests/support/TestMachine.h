#pragma once

#include "platform/Services.h"
#include "support/FakeMainLoop.h"
#include "support/FakePointer.h"
#include "support/FakeScreens.h"

#include <functional>
#include <list>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace brellowind::test {

/// A wall clock that runs with the fake main loop and can be put forward or back.
class FakeClock final : public platform::Clock {
public:
    explicit FakeClock(const FakeMainLoop& loop) : loop_(loop) {}

    platform::WallTime now() const override { return start_ + loop_.elapsed() + shift; }

    std::chrono::milliseconds shift{0};

private:
    const FakeMainLoop& loop_;
    platform::WallTime start_{std::chrono::hours(24 * 365 * 50)};
};

class FakeLog final : public platform::Log {
public:
    void write(std::string_view line) override { lines.emplace_back(line); }

    std::vector<std::string> lines;
};

/// Answers every script with what `answer` returns and remembers the scripts.
class FakeScripting final : public platform::Scripting {
public:
    platform::ScriptOutcome execute(std::string_view source) override {
        executed.emplace_back(source);
        return answer(executed.back());
    }

    /// How often `source` was executed.
    std::size_t count(std::string_view source) const;

    std::function<platform::ScriptOutcome(const std::string&)> answer = [](const auto&) {
        return platform::ScriptOutcome{};
    };
    std::vector<std::string> executed;
};

class FakeRunningApplications final : public platform::RunningApplications {
public:
    std::vector<std::optional<std::string>> bundleIdentifiers() override {
        ++readings;
        return running;
    }

    std::vector<std::optional<std::string>> running;
    int readings = 0;
};

/// Holds every request until the test answers it.
class FakeHttpClient final : public platform::HttpClient {
public:
    struct Pending {
        platform::HttpRequest request;
        Completion completion;
        bool aborted = false;

        Pending(platform::HttpRequest request_, Completion completion_)
            : request(std::move(request_)), completion(std::move(completion_)) {}
    };

    std::unique_ptr<platform::Transfer> send(const platform::HttpRequest& request,
                                             Completion completion) override;

    /// Ends the transfer of the `index`-th request ever sent.
    void answer(std::size_t index, platform::HttpResult result);

    /// How many requests are neither answered nor aborted.
    std::size_t pending() const;

    std::vector<std::shared_ptr<Pending>> requests;
};

class FakeApplication final : public platform::Application {
public:
    void activate() override { ++activations; }
    void terminate() override { ++terminations; }

    int activations = 0;
    int terminations = 0;
};

/// Remembers the links that were to be opened.
class FakeLinkOpener final : public platform::LinkOpener {
public:
    bool open(std::string_view url) override {
        opened.emplace_back(url);
        return opens;
    }

    bool opens = true;
    std::vector<std::string> opened;
};

/// A login item whose registrations and unregistrations succeed unless the test says what fails.
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

/// An image that remembers the bytes it came from.
class FakeImage final : public platform::Image {
public:
    explicit FakeImage(std::string_view bytes_) : bytes(bytes_) {}

    const std::string bytes;
};

/// Decodes whatever begins with "image".
class FakeImageDecoder final : public platform::ImageDecoder {
public:
    std::shared_ptr<const platform::Image> decode(std::string_view bytes) override {
        return bytes.starts_with("image") ? std::make_shared<FakeImage>(bytes) : nullptr;
    }
};

/// Holds the files that a test puts there, by their locations.
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

/// The whole machine of one test, installed for as long as it lives.
class TestMachine {
public:
    TestMachine();

    FakeMainLoop mainLoop;
    TaskRunner tasks{mainLoop};
    FakeClock clock{mainLoop};
    FakeLog log;
    FakeHttpClient http;
    FakeImageDecoder images;
    FakeLocalFiles files;
    FakeScripting scripting;
    FakeRunningApplications runningApplications;
    FakeScreens screens; ///< none at first
    FakePointer pointer;
    FakeApplication application;
    FakeLinkOpener links;
    FakeLoginItem loginItem;
    platform::ProductConstants constants;

    /// The services of this machine with another main loop and its tasks, or with another decoder,
    /// for a scope of the test's own.
    platform::Services with(platform::MainLoop& otherLoop, TaskRunner& otherTasks);
    platform::Services with(platform::ImageDecoder& otherImages);

private:
    platform::Services services(platform::MainLoop& anyLoop, TaskRunner& anyTasks,
                                platform::ImageDecoder& anyImages);

    platform::ServicesScope scope_;
};

} // namespace brellowind::test
