#pragma once

#include "views/NotchRootView.h"

#include <QImage>
#include <QString>
#include <memory>

namespace brellowind {

/// What the pill draws: a copy of what its view has published. A very long text is cut.
struct PillContent {
    explicit PillContent(const NotchRootView& view) { update(view); }

    /// Returns whether anything was different before.
    bool update(const NotchRootView& view);

    QString line;
    QString title;
    QString artist;
    std::shared_ptr<const platform::Image> artwork;
    QImage cover; ///< of `artwork`; null: none
    bool isPlaying = false;
    NotchRootView::Form form;
};

} // namespace brellowind
