#include "views/pill/PillContent.h"

#include "foundation/Utf8.h"
#include "platform/qt/QtImageDecoder.h"

namespace brellowind {
namespace {

/// In bytes: far more than fits on any screen. A lyrics file may be a single line of a mebibyte,
/// which takes seconds to lay out.
constexpr std::size_t longestText = 4096;

template <typename Value>
bool assign(Value& member, const Value& value) {
    if (value == member)
        return false;
    member = value;
    return true;
}

} // namespace

bool PillText::set(std::string_view utf8) {
    const auto shown = utf8::beginning(utf8, longestText);
    if (shown == utf8_)
        return false;
    utf8_ = shown;
    text_ = QString::fromStdString(utf8_);
    return true;
}

bool PillContent::update(const NotchRootView& view) {
    bool changed = line.set(view.currentLineText());
    const auto& track = view.nowPlaying().track.get();
    changed |= title.set(track ? std::string_view(track->title) : std::string_view());
    changed |= artist.set(track ? std::string_view(track->artist) : std::string_view());
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
