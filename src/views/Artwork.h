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

/// The cover of the current track. Held by a std::shared_ptr. Main thread only.
class Artwork : public std::enable_shared_from_this<Artwork> {
public:
    /// A longer file is left alone like one that is no image.
    static constexpr std::size_t maximumBytes = 16 * 1024 * 1024;

    /// The side of the largest square that it is drawn in.
    static constexpr int largestPoints = 320;

    /// The services must outlive it and the tasks that it starts.
    Artwork(TaskRunner& tasks, platform::HttpClient& http, platform::LocalFiles& files,
            platform::ImageDecoder& images);

    /// Fetches the image at `location`, over HTTP or from a file, and shows it once it is there;
    /// until then, and for good when it cannot be had, the present one stays. Without a valid
    /// location there is no image at once. Of overlapping loads the one that ends last counts.
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
