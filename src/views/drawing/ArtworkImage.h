// SPDX-License-Identifier: MIT

#pragma once

#include "views/drawing/CoverImage.h"
#include "views/scene/Item.h"

namespace brellowind {

/// The cover, filling a rectangle with round corners; dark grey if there is none.
class ArtworkImage : public PainterItem {
    Q_OBJECT

public:
    explicit ArtworkImage(Item* parent = nullptr);

    void setImage(const QImage& image);

    void setRadius(double radius);

    void paint(QPainter& painter) override;

private:
    CoverImage cover_;
    double radius_ = 0;
};

} // namespace brellowind
