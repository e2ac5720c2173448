#pragma once

#include "views/NotchRootView.h"

#include <QImage>
#include <QString>
#include <memory>
#include <string>
#include <string_view>

namespace brellowind {

/// A text as items draw it, converted only when it changes. A very long one is cut.
class PillText {
public:
    /// Returns whether it was another text before.
    bool set(std::string_view utf8);

    const QString& get() const { return text_; }

private:
    std::string utf8_; ///< `text_` as it came, to compare without converting
    QString text_;
};

/// What the pill draws: a copy of what its view has published.
struct PillContent {
    explicit PillContent(const NotchRootView& view) { update(view); }

    /// Returns whether anything was different before.
    bool update(const NotchRootView& view);

    PillText line;
    PillText title;
    PillText artist;
    std::shared_ptr<const platform::Image> artwork;
    QImage cover; ///< of `artwork`; null: none
    bool isPlaying = false;
    NotchRootView::Form form;
};

} // namespace brellowind
