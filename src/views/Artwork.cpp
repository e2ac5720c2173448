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
    platform::HttpRequest request{
        .url = std::move(url), .headers = {}, .maximumBodyBytes = maximumBytes};
    const auto result = co_await platform::fetch(std::move(request));
    const auto* response = std::get_if<platform::HttpResponse>(&result);
    if (!response)
        co_return;
    auto decoded = platform::services().images.decode(response->body);
    const auto artwork = weakArtwork.lock();
    if (decoded && artwork)
        artwork->image.set(std::move(decoded));
}

} // namespace brellowind
