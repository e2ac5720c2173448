// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "platform/HttpClient.h"
#include "platform/Images.h"
#include "platform/LocalFiles.h"
#include "platform/TaskRunner.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace brellowind {

/// The cover of the current track. Must be owned by a std::shared_ptr. Main thread only.
class Artwork : public std::enable_shared_from_this<Artwork> {
public:
    /// Longer files are ignored, like files that are not images.
    static constexpr std::size_t maximumBytes = 16 * 1024 * 1024;

    /// The side of the largest square in which the cover is drawn.
    static constexpr int largestPoints = 320;

    /// All references must outlive this object and the tasks that it starts.
    Artwork(TaskRunner& tasks, platform::HttpClient& http, platform::LocalFiles& files,
            platform::ImageDecoder& images);

    /// Fetches the image at `location`, an HTTP or file URL, and sets it when loaded; on failure
    /// the current image stays. Without a valid URL the image is cleared at once. Of concurrent
    /// loads the last to complete counts.
    void load(const std::optional<std::string>& location);

    Published<std::shared_ptr<const platform::Image>, Artwork> image{nullptr}; ///< null: none

private:
    using Bytes = std::optional<std::string>;

    static Task<void> fetchInto(std::weak_ptr<Artwork> artwork, Task<Bytes> fetch);
    static Task<Bytes> fetchBytes(platform::HttpClient& http, platform::LocalFiles& files,
                                  std::string url);

    TaskRunner& tasks_;
    platform::HttpClient& http_;
    platform::LocalFiles& files_;
    platform::ImageDecoder& images_;
};

} // namespace brellowind
