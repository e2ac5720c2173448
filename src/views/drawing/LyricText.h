// SPDX-License-Identifier: MIT

#pragma once

#include "views/drawing/TextLayer.h"
#include "views/motion/FrameDriver.h"
#include "views/motion/Glide.h"
#include "views/scene/Item.h"

#include <QColor>
#include <QFont>
#include <functional>
#include <limits>
#include <list>
#include <optional>
#include <utility>

namespace brellowind {

/// One line of text in any script, at its natural size. A change of the text is a cross-fade: the
/// old line blurs, shrinks a little and fades out while the new one sharpens, grows and fades in,
/// around the same centre. A text that is wider than its room scrolls once from beginning to end
/// each time it appears. Clipped ends are faded and extend beyond the room by `fadeOverhang`.
class LyricText : public PainterItem, private Animated {
    Q_OBJECT

public:
    struct Style {
        QFont font;
        QColor color;
        double room = std::numeric_limits<double>::infinity(); ///< a wider text scrolls
    };

    /// Seconds for which the current text will be shown; nullopt if unknown.
    using TimeLeft = std::function<std::optional<double>()>;

    static constexpr double fadeOverhang = 7;

    /// Shows `text` at once if it is present. `frames` must outlive this object.
    LyricText(Style style, const QString& text, bool present, FrameDriver& frames, Item* parent);
    ~LyricText() override;

    const QString& text() const { return text_; }
    void setText(const QString& text);

    /// Fades the line in or out, as with a change of the text.
    void setPresent(bool present);

    void setRoom(double width);

    /// `timeLeft` is called when a glide begins.
    void glideWithin(TimeLeft timeLeft) { timeLeft_ = std::move(timeLeft); }

    /// Pauses or resumes the glide.
    void setHeld(bool held);

    /// The width of the whole current text, without lines that are fading out.
    double naturalWidth() const { return layers_.back().width(); }

    bool isRightToLeft() const { return layers_.back().isRightToLeft(); }

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

protected:
    void visibilityChanged() override;

private:
    std::optional<double> advance(double now) override;
    void updateSize();
    bool mayGlide() const;
    void beginGlide();
    std::optional<double> glide(double now);
    bool isCut(const TextLayer& layer) const { return layer.width() > style_.room; }
    QRectF paintedRect(const TextLayer& layer) const;
    void paintCut(TextLayer& layer, QPainter& painter) const;

    FrameDriver& frames_;
    Style style_;
    QString text_;
    bool present_;
    std::list<TextLayer> layers_; ///< the last one is the current text, the others are fading out
    TimeLeft timeLeft_ = [] { return std::nullopt; };
    bool held_ = false;
    std::optional<Glide> glide_; ///< of the current text; absent before it begins
    double glided_ = 0;          ///< seconds of the glide, without pauses
    double lastGlide_ = 0;       ///< the time at which `glided_` was updated
};

} // namespace brellowind
