// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QColor>

namespace brellowind {

/// A filled rectangle whose short sides are half circles.
class Capsule : public PainterItem {
    Q_OBJECT

public:
    explicit Capsule(Item* parent = nullptr);

    void setColor(const QColor& color);

    void paint(QPainter& painter) override;

private:
    QColor color_ = Qt::white;
};

} // namespace brellowind
