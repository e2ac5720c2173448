// SPDX-License-Identifier: MIT

#pragma once

#include "views/NotchRootView.h"

#include <QImage>
#include <QString>
#include <memory>

namespace brellowind {

/// A snapshot of the presenter's state for drawing. Very long texts are truncated.
struct PillContent {
    explicit PillContent(const NotchRootView& view) { update(view); }

    /// Returns whether anything has changed.
    bool update(const NotchRootView& view);

    QString line;
    QString title;
    QString artist;
    std::shared_ptr<const platform::Image> artwork;
    QImage cover; ///< of `artwork`; null if none
    bool isPlaying = false;
    NotchRootView::Form form;
};

} // namespace brellowind
