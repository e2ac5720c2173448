#include "settings/UpdateChecker.h"

#include "platform/Services.h"
#include "platform/SharedInstance.h"
#include "settings/AppInfo.h"
#include "settings/UpdateFeed.h"
#include "settings/VersionOrder.h"

#include <string_view>
#include <utility>

namespace brellowind {
namespace {

using platform::services;

UpdateState failure(std::string_view description) {
    std::string line = "Update check failed: ";
    line += description;
    services().log.write(line);
    return UpdateState::failed();
}

/// What the answer to the request for the feed means. The HTTP status is not looked at: an error
/// page is no feed.
UpdateState outcome(const platform::HttpResult& result) {
    if (const auto* error = std::get_if<platform::TransportError>(&result))
        return failure(error->description);
    auto feed = UpdateFeed::decode(std::get<platform::HttpResponse>(result).body);
    if (const auto* undecodable = std::get_if<UpdateFeed::Undecodable>(&feed))
        return failure(undecodable->description);
    auto& release = std::get<Release>(feed);
    if (!isNewer(release.version, UpdateChecker::currentVersion()))
        return UpdateState::upToDate();
    return UpdateState::available(std::move(release));
}

} // namespace

UpdateChecker& UpdateChecker::shared() {
    return platform::sharedInstance<UpdateChecker>(
        [] { return std::shared_ptr<UpdateChecker>(new UpdateChecker); });
}

std::string UpdateChecker::currentVersion() {
    const auto& version = services().constants.version;
    return version.empty() ? "0" : version;
}

Task<void> UpdateChecker::check() {
    return run(shared_from_this());
}

Task<void> UpdateChecker::run(std::shared_ptr<UpdateChecker> self) {
    self->state.set(State::checking());
    platform::HttpRequest request{.url = AppInfo::updateFeedURL(),
                                  .headers = {},
                                  .maximumBodyBytes = maximumBodyBytes,
                                  .cachePolicy = platform::CachePolicy::reload};
    const auto result = co_await platform::fetch(std::move(request));
    self->state.set(outcome(result));
}

void UpdateChecker::openDownload() const {
    if (const auto& release = state->release())
        services().links.open(release->url);
}

} // namespace brellowind
