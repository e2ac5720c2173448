#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// The side of the square that the symbols are designed in, in points.
inline constexpr double symbolBox = 20;

/// The area that the symbol of this name fills inside the box; empty for another name.
QPainterPath symbolPath(QStringView name);

/// One of the program's own symbols, drawn as large as the item, sharp on every screen.
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
