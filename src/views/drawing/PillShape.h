// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Path.h"
#include "views/scene/Item.h"

#include <QImage>

namespace brellowind {

/// The black shape of the pill, and its shadow while it is lifted.
class PillShape : public PainterItem {
    Q_OBJECT

public:
    explicit PillShape(Item* parent = nullptr);

    /// The width by which each top corner extends beyond the side.
    double flare() const;

    /// From 0, no shadow, to 1, the full shadow. Scales its opacity, blur and extent. The shadow
    /// fades out towards the end of the window.
    void setLift(double lift);

    /// The outline, in the item's coordinates.
    Path outline() const;

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

private:
    /// The parameters of a shadow's image.
    struct Cast {
        QSizeF pill;
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
