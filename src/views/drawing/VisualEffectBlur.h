#pragma once

#include "views/drawing/PainterItem.h"

#include <QImage>

namespace brellowind {

/// What lies behind it, blurred and dimmed: here always a cover that fills the square of side
/// `coverSide`, at whose bottom edge this lies. Its bottom corners are round, its top corners not.
class VisualEffectBlur : public brellowind::PainterItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(double coverSide MEMBER coverSide_ WRITE setCoverSide NOTIFY coverSideChanged)
    Q_PROPERTY(double radius MEMBER radius_)

public:
    explicit VisualEffectBlur(QQuickItem* parent = nullptr);

    QImage image() const { return image_; }
    void setImage(const QImage& image);

    void setCoverSide(double side);

    void paint(QPainter& painter) override;

Q_SIGNALS:
    void imageChanged();
    void coverSideChanged();

private:
    QImage image_;
    QImage blurred_; ///< made when it is first seen; small: it has no detail to lose
    double coverSide_ = 0;
    double radius_ = 0;
};

} // namespace brellowind
