// SPDX-License-Identifier: MIT

#include "settings/UpdateChecker.h"

#include "settings/UpdateFeed.h"
#include "settings/VersionOrder.h"

#include <utility>

namespace brellowind {

UpdateChecker::UpdateChecker(platform::HttpClient& http, platform::Log& log,
                             platform::LinkOpener& links,
                             const platform::ProductConstants& constants)
    : http_(http), log_(log), links_(links), constants_(constants) {}

std::string UpdateChecker::currentVersion() const {
    return constants_.version.empty() ? "0" : constants_.version;
}

bool UpdateChecker::hasFeed() const {
    return !constants_.updateFeedURL.empty();
}

Task<void> UpdateChecker::check() {
    return run(shared_from_this());
}

Task<void> UpdateChecker::run(std::shared_ptr<UpdateChecker> self) {
    if (!self->hasFeed())
        co_return;
    self->state.set(State::checking());
    platform::HttpRequest request{.url = self->constants_.updateFeedURL,
                                  .headers = {},
                                  .maximumBodyBytes = maximumBodyBytes,
                                  .cachePolicy = platform::CachePolicy::reload};
    const auto result = co_await self->http_.fetch(std::move(request));
    self->state.set(self->outcome(result));
}

/// Ignores the HTTP status: an error page is not a valid feed.
UpdateState UpdateChecker::outcome(const platform::HttpResult& result) const {
    if (const auto* error = std::get_if<platform::TransportError>(&result))
        return failure(error->description);
    auto feed = UpdateFeed::decode(std::get<platform::HttpResponse>(result).body);
    if (const auto* undecodable = std::get_if<UpdateFeed::Undecodable>(&feed))
        return failure(undecodable->description);
    auto& release = std::get<Release>(feed);
    if (!isNewer(release.version, currentVersion()))
        return State::upToDate();
    return State::available(std::move(release));
}

UpdateState UpdateChecker::failure(std::string_view description) const {
    std::string line = "Update check failed: ";
    line += description;
    log_.write(line);
    return State::failed();
}

void UpdateChecker::openDownload() const {
    if (const auto& release = state->release())
        links_.open(release->url);
}

} // namespace brellowind
