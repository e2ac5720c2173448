#include "platform/Track.h"

#include <utility>

namespace brellowind {

Track::Track(std::string title_, std::string artist_, std::string album_, double durationMs_,
             std::optional<std::string> artworkURL_)
    : title(std::move(title_)), artist(std::move(artist_)), album(std::move(album_)),
      durationMs(durationMs_), artworkURL(std::move(artworkURL_)) {}

std::string Track::id() const {
    std::string id;
    id.reserve(title.size() + artist.size() + album.size() + 2);
    return id.append(title).append("|").append(artist).append("|").append(album);
}

} // namespace brellowind
