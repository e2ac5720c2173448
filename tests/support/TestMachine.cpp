#include "support/TestMachine.h"

#include <algorithm>
#include <utility>

namespace brellowind::test {
namespace {

class FakeTransfer final : public platform::Transfer {
public:
    explicit FakeTransfer(std::shared_ptr<FakeHttpClient::Pending> pending)
        : pending_(std::move(pending)) {}

    ~FakeTransfer() override {
        if (std::exchange(pending_->completion, nullptr))
            pending_->aborted = true;
    }

private:
    std::shared_ptr<FakeHttpClient::Pending> pending_;
};

} // namespace

std::size_t FakeScripting::count(std::string_view source) const {
    return static_cast<std::size_t>(std::ranges::count(executed, source));
}

std::unique_ptr<platform::Transfer> FakeHttpClient::send(const platform::HttpRequest& request,
                                                         Completion completion) {
    requests.push_back(std::make_shared<Pending>(request, std::move(completion)));
    return std::make_unique<FakeTransfer>(requests.back());
}

void FakeHttpClient::answer(std::size_t index, platform::HttpResult result) {
    if (const auto completion = std::exchange(requests.at(index)->completion, nullptr))
        completion(std::move(result));
}

std::size_t FakeHttpClient::pending() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        requests, [](const auto& request) { return request->completion != nullptr; }));
}

std::optional<std::string> FakeLoginItem::attempt(std::string_view name,
                                                  const std::optional<std::string>& error,
                                                  Status outcome) {
    attempts.emplace_back(name);
    if (!error)
        current = outcome;
    return error;
}

TestMachine::TestMachine()
    : constants{.version = "1.0",
                .lyricsOrigin = "https://lyrics.example",
                .websiteURL = "https://brellowind.example",
                .socialURL = "https://social.example/brellowind",
                .privacyPolicyURL = "https://brellowind.example/privacy",
                .termsURL = "https://brellowind.example/terms",
                .feedbackEmail = "feedback@brellowind.example",
                .updateFeedURL = "https://brellowind.example/latest.json",
                .legalNotice = "© brellowind.example"},
      scope_(services(mainLoop, tasks, images)) {}

platform::Services TestMachine::with(platform::MainLoop& otherLoop, TaskRunner& otherTasks) {
    return services(otherLoop, otherTasks, images);
}

platform::Services TestMachine::with(platform::ImageDecoder& otherImages) {
    return services(mainLoop, tasks, otherImages);
}

platform::Services TestMachine::services(platform::MainLoop& anyLoop, TaskRunner& anyTasks,
                                         platform::ImageDecoder& anyImages) {
    return {.mainLoop = anyLoop,
            .tasks = anyTasks,
            .clock = clock,
            .log = log,
            .http = http,
            .images = anyImages,
            .files = files,
            .scripting = scripting,
            .runningApplications = runningApplications,
            .screens = screens,
            .pointer = pointer,
            .application = application,
            .links = links,
            .loginItem = loginItem,
            .constants = constants};
}

} // namespace brellowind::test
