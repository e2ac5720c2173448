#pragma once

#include "foundation/Path.h"
#include "views/scene/Item.h"

#include <QImage>

namespace brellowind {

/// The black outline of the pill, and the shadow that it casts when it is lifted.
class PillShape : public PainterItem {
    Q_OBJECT

public:
    explicit PillShape(Item* parent = nullptr);

    /// How far the top corners flare beyond the sides.
    double flare() const;

    /// 0: no shadow. 1: the whole shadow. In between strength, softness and reach grow. It fades
    /// out where the window ends.
    void setLift(double lift);

    /// The outline, in the item's coordinates.
    Path outline() const;

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

private:
    /// What a shadow looks like, but for the pixels.
    struct Cast {
        QSizeF pill; ///< that casts it; no wider than anybody sees
        double lift = 0;
        double room = 0; ///< points below the pill

        bool operator==(const Cast&) const = default;
    };

    void paintShadow(QPainter& painter);
    double roomBelow() const;

    double lift_ = 0;
    QImage shadow_; ///< null while there is none
    Cast cast_;     ///< of `shadow_`
};

} // namespace brellowind
