#pragma once

#include "foundation/Published.h"
#include "foundation/Task.h"
#include "platform/Images.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

namespace brellowind {

/// The cover of the current track. Main thread only.
class Artwork : public std::enable_shared_from_this<Artwork> {
public:
    /// A longer file is left alone like one that is no image.
    static constexpr std::size_t maximumBytes = 16 * 1024 * 1024;

    static std::shared_ptr<Artwork> create();

    /// Fetches the image at `url`, over HTTP or from a file, and shows it once it is there; until
    /// then, and for good when it cannot be had, the present one stays. Without a valid location
    /// there is no image at once. Of overlapping loads the one that ends last counts.
    void load(const std::optional<std::string>& url);

    Published<std::shared_ptr<const platform::Image>, Artwork> image{nullptr}; ///< null: none

private:
    Artwork() = default;

    static Task<void> fetchInto(std::weak_ptr<Artwork> artwork, std::string url);
    static Task<std::optional<std::string>> fetchBytes(std::string url);
};

} // namespace brellowind
