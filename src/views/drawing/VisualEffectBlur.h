#pragma once

#include "views/scene/Item.h"

#include <QImage>

namespace brellowind {

/// What lies behind it, blurred and dimmed: here always a cover that fills the square of side
/// `coverSide`, at whose bottom edge this lies. Its bottom corners are round by `radius`, its top
/// corners not.
class VisualEffectBlur : public PainterItem {
    Q_OBJECT

public:
    VisualEffectBlur(double coverSide, double radius, Item* parent);

    void setImage(const QImage& image);

    void paint(QPainter& painter) override;

private:
    QImage image_;
    QImage blurred_; ///< made when it is first seen; small: it has no detail to lose
    double coverSide_;
    double radius_;
};

} // namespace brellowind
