// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// The side of the symbols' design square, in points.
inline constexpr double symbolBox = 20;

/// The shape of a symbol inside the box; empty for an unknown name.
QPainterPath symbolPath(QStringView name);

/// Draws one of the program's symbols, scaled to the item's size.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name MEMBER name_ NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed REQUIRED FINAL)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void changed();

private:
    QString name_;
    QColor color_;
};

} // namespace brellowind
