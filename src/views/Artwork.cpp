#include "views/Artwork.h"

#include "foundation/AbsoluteURL.h"
#include "platform/Services.h"

#include <utility>

namespace brellowind {

std::shared_ptr<Artwork> Artwork::create() {
    return std::shared_ptr<Artwork>(new Artwork);
}

void Artwork::load(const std::optional<std::string>& url) {
    if (url && isAbsoluteURL(*url))
        platform::services().tasks.start(fetchInto(weak_from_this(), *url));
    else
        image.set(nullptr);
}

Task<void> Artwork::fetchInto(std::weak_ptr<Artwork> weakArtwork, std::string url) {
    const auto bytes = co_await fetchBytes(std::move(url));
    const auto artwork = weakArtwork.lock();
    if (!bytes || !artwork)
        co_return;
    if (auto decoded = platform::services().images.decode(*bytes))
        artwork->image.set(std::move(decoded));
}

Task<std::optional<std::string>> Artwork::fetchBytes(std::string url) {
    if (url.starts_with("file:"))
        co_return platform::services().files.read(url, maximumBytes);
    platform::HttpRequest request{
        .url = std::move(url), .headers = {}, .maximumBodyBytes = maximumBytes};
    auto result = co_await platform::fetch(std::move(request));
    auto* response = std::get_if<platform::HttpResponse>(&result);
    co_return response ? std::optional(std::move(response->body)) : std::nullopt;
}

} // namespace brellowind
