#pragma once

#include "views/drawing/TextLayer.h"
#include "views/motion/FrameDriver.h"
#include "views/motion/Glide.h"
#include "views/scene/Accessible.h"
#include "views/scene/Item.h"

#include <QColor>
#include <QFont>
#include <functional>
#include <limits>
#include <list>
#include <optional>
#include <utility>

namespace brellowind {

/// One line of text in any script, at its natural size. When its text changes, the old line blurs,
/// shrinks a little and fades away while the new one sharpens, grows into place and fades in, both
/// about the same middle. A text that is wider than its room glides through it, from its beginning
/// to its end, once each time that it comes to be seen. Where it is cut its ends are soft and reach
/// beyond the room by `softReach`.
class LyricText : public PainterItem, public Accessible, private Animated {
    Q_OBJECT

public:
    struct Look {
        QFont font;
        QColor color;
        double room = std::numeric_limits<double>::infinity(); ///< a wider text glides
    };

    /// How many seconds from now on the present text is shown; none: nobody knows.
    using TimeLeft = std::function<std::optional<double>()>;

    static constexpr double softReach = 7;

    /// Shows `text` at once, unless it is not present. `frames` must outlive it.
    LyricText(Look look, const QString& text, bool present, FrameDriver& frames, Item* parent);
    ~LyricText() override;

    void setText(const QString& text);

    /// A line that is not present is on its way out in the same manner, or gone.
    void setPresent(bool present);

    void setRoom(double width);

    /// A glide asks `timeLeft` when it begins.
    void glideWithin(TimeLeft timeLeft) { timeLeft_ = std::move(timeLeft); }

    /// A text that is held does not glide, and goes on where it stood.
    void setHeld(bool held);

    /// The width of the whole present text; a line that goes does not count.
    double naturalWidth() const { return layers_.back().width(); }

    bool isRightToLeft() const { return layers_.back().isRightToLeft(); }

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }
    QString accessibleName() const override { return text_; }

protected:
    void visibilityChanged() override;

private:
    std::optional<double> advance(double now) override;
    void followSize();
    bool mayGlide() const;
    void beginGlide();
    std::optional<double> glide(double now);
    bool isCut(const TextLayer& layer) const { return layer.width() > look_.room; }
    QRectF paintedRect(const TextLayer& layer) const;
    void paintCut(TextLayer& layer, QPainter& painter) const;

    FrameDriver& frames_;
    Look look_;
    QString text_;
    bool present_;
    std::list<TextLayer> layers_; ///< the last one is the present text, the others go
    TimeLeft timeLeft_ = [] { return std::nullopt; };
    bool held_ = false;
    std::optional<Glide> glide_; ///< of the present text; none: not begun
    double glided_ = 0;          ///< seconds since it began, without those in which it was held
    double lastGlide_ = 0;       ///< the moment until which they are counted
};

} // namespace brellowind
