#include "settings/window/Symbol.h"

#include "settings/window/SymbolPath.h"

#include <QPainter>

namespace brellowind {

Symbol::Symbol(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    setImplicitSize(symbolBox, symbolBox);
}

void Symbol::paint(QPainter* painter) {
    painter->scale(width() / symbolBox, height() / symbolBox);
    painter->fillPath(symbolPath(name_), color_);
}

void Symbol::setName(const QString& name) {
    if (name == name_)
        return;
    name_ = name;
    update();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
    Q_EMIT colorChanged();
}

} // namespace brellowind
