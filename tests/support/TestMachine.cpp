// SPDX-License-Identifier: MIT

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

} // namespace brellowind::test
