// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QImage>

namespace brellowind {

/// Blurs and dims the cover behind it, which fills the square of side `coverSide` above this item's
/// bottom edge. Only the bottom corners are rounded, by `radius`.
class VisualEffectBlur : public PainterItem {
    Q_OBJECT

public:
    VisualEffectBlur(double coverSide, double radius, Item* parent);

    void setImage(const QImage& image);

    void paint(QPainter& painter) override;

private:
    QImage image_;
    QImage blurred_; ///< made on demand, at low resolution
    double coverSide_;
    double radius_;
};

} // namespace brellowind
