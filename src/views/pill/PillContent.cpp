// SPDX-License-Identifier: MIT

#include "views/pill/PillContent.h"

#include "foundation/Utf8.h"
#include "platform/qt/QtImageDecoder.h"

namespace brellowind {
namespace {

/// In bytes, more than fits any screen. Layout of 1 MiB takes seconds.
constexpr std::size_t longestText = 4096;

template <typename Value>
bool assign(Value& member, const Value& value) {
    if (value == member)
        return false;
    member = value;
    return true;
}

QString shown(std::string_view text) {
    return QString::fromUtf8(utf8::beginning(text, longestText));
}

} // namespace

bool PillContent::update(const NotchRootView& view) {
    bool changed = assign(line, shown(view.currentLineText()));
    const auto& track = view.nowPlaying().track.get();
    changed |= assign(title, track ? shown(track->title) : QString());
    changed |= assign(artist, track ? shown(track->artist) : QString());
    if (assign(artwork, view.artwork().image.get())) {
        const auto* decoded = dynamic_cast<const platform::QtImage*>(artwork.get());
        cover = decoded ? decoded->image : QImage();
        changed = true;
    }
    changed |= assign(isPlaying, view.nowPlaying().isPlaying.get());
    changed |= assign(form, view.form());
    return changed;
}

} // namespace brellowind
