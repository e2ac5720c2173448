#pragma once

#include "views/drawing/TextLayer.h"
#include "views/motion/FrameDriver.h"
#include "views/scene/Accessible.h"
#include "views/scene/Item.h"

#include <QColor>
#include <QFont>
#include <list>

namespace brellowind {

/// One line of text in any script, as wide as it is and never cut. When its text changes, the old
/// line blurs, shrinks a little and fades away while the new one sharpens, grows into place and
/// fades in, both about the same middle.
class LyricText : public PainterItem, public Accessible, private Animated {
    Q_OBJECT

public:
    struct Look {
        QFont font;
        QColor color;
        double maximumWidth = 0; ///< a wider line ends in an ellipsis; 0: none is too wide
    };

    /// Shows `text` at once, unless it is not present. `frames` must outlive it.
    LyricText(Look look, const QString& text, bool present, FrameDriver& frames, Item* parent);
    ~LyricText() override;

    void setText(const QString& text);

    /// A line that is not present is on its way out in the same manner, or gone.
    void setPresent(bool present);

    /// The width that the present text takes; a line that goes does not count.
    double naturalWidth() const { return layers_.back().width(); }

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

    QAccessible::Role accessibleRole() const override { return QAccessible::StaticText; }
    QString accessibleName() const override { return text_; }

protected:
    void visibilityChanged() override;

private:
    std::optional<double> advance(double now) override;
    void followSize();

    FrameDriver& frames_;
    Look look_;
    QString text_;
    bool present_;
    std::list<TextLayer> layers_; ///< the last one is the present text, the others go
};

} // namespace brellowind
