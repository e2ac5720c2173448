#include "views/NotchRootModel.h"

#include "foundation/Utf8.h"
#include "platform/qt/QtImageDecoder.h"

#include <utility>

namespace brellowind {
namespace {

/// In bytes: far more than fits on any screen. A lyrics file may be a single line of a mebibyte,
/// which takes seconds to lay out.
constexpr std::size_t longestText = 4096;

QString text(std::string_view utf8) {
    const auto shown = utf8::beginning(utf8, longestText);
    return QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
}

} // namespace

NotchRootModel::NotchRootModel(std::shared_ptr<NotchRootView> view, QObject* parent)
    : QObject(parent), view_(std::move(view)), redraws_(view_->onRedraw([this] { redraw(); })) {
    redraw();
}

void NotchRootModel::redraw() {
    redrawTrack();
    if (const auto line = view_->currentLineText(); line != shownLineText_) {
        shownLineText_ = line;
        currentLineText_ = text(line);
        Q_EMIT currentLineTextChanged();
    }
    if (const auto& image = view_->artwork().image.get(); image != shownImage_) {
        shownImage_ = image;
        const auto* decoded = dynamic_cast<const platform::QtImage*>(image.get());
        coverImage_ = decoded ? decoded->image : QImage();
        Q_EMIT coverImageChanged();
    }
    if (const bool isPlaying = view_->nowPlaying().isPlaying.get(); isPlaying != isPlaying_) {
        isPlaying_ = isPlaying;
        Q_EMIT isPlayingChanged();
    }
    if (view_->form() != form_) {
        form_ = view_->form();
        Q_EMIT formChanged();
    }
}

void NotchRootModel::redrawTrack() {
    const auto& track = view_->nowPlaying().track.get();
    if (track == shownTrack_)
        return;
    shownTrack_ = track;
    title_ = track ? text(track->title) : QString();
    artist_ = track ? text(track->artist) : QString();
    Q_EMIT trackChanged();
}

} // namespace brellowind
