// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// A spinner of eight spokes of decreasing opacity; `step` selects the brightest.
class Spokes : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(int step MEMBER step_ NOTIFY changed FINAL)

public:
    explicit Spokes(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QColor color_;
    int step_ = 0; ///< clockwise from 0 at the top, not limited to one turn
};

} // namespace brellowind
