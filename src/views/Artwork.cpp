// SPDX-License-Identifier: MIT

#include "views/Artwork.h"

#include "foundation/AbsoluteURL.h"
#include "foundation/PercentEncoding.h"

#include <utility>

namespace brellowind {
namespace {

bool isFile(std::string_view url) {
    return url.starts_with("file:");
}

} // namespace

Artwork::Artwork(TaskRunner& tasks, platform::HttpClient& http, platform::LocalFiles& files,
                 platform::ImageDecoder& images)
    : tasks_(tasks), http_(http), files_(files), images_(images) {}

void Artwork::load(const std::optional<std::string>& location) {
    const auto url = location && isFile(*location) ? fileURL(*location) : location;
    if (url && isAbsoluteURL(*url))
        tasks_.start(fetchInto(weak_from_this(), fetchBytes(http_, files_, *url)));
    else
        image.set(nullptr);
}

Task<void> Artwork::fetchInto(std::weak_ptr<Artwork> weakArtwork, Task<Bytes> fetch) {
    const auto bytes = co_await std::move(fetch);
    const auto artwork = weakArtwork.lock();
    if (!bytes || !artwork)
        co_return;
    if (auto decoded = artwork->images_.decode(*bytes, largestPoints))
        artwork->image.set(std::move(decoded));
}

Task<Artwork::Bytes> Artwork::fetchBytes(platform::HttpClient& http, platform::LocalFiles& files,
                                         std::string url) {
    if (isFile(url))
        co_return files.read(url, maximumBytes);
    platform::HttpRequest request{
        .url = std::move(url), .headers = {}, .maximumBodyBytes = maximumBytes};
    auto result = co_await http.fetch(std::move(request));
    auto* response = std::get_if<platform::HttpResponse>(&result);
    co_return response ? std::optional(std::move(response->body)) : std::nullopt;
}

} // namespace brellowind
