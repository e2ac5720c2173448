// SPDX-License-Identifier: MIT

#include "views/pill/PillMenuEntry.h"

#include "views/pill/Style.h"
#include "views/scene/TapArea.h"

#include <QPainter>

namespace brellowind {
namespace {

constexpr double entryHeight = 26;
constexpr double indent = 10;
constexpr double cornerRadius = 6;

const QColor highlight = QColor::fromRgbF(1, 1, 1, 0.14F);

} // namespace

PillMenuEntry::PillMenuEntry(const QString& text, Item* parent)
    : PainterItem(parent), text_(text), area_(new TapArea(QAccessible::MenuItem, this)) {
    setSize({entryWidth, entryHeight});
    area_->setFocused(false);
    area_->setSize(size());
    area_->setName(text);
    area_->acceptHover();
    connect(area_, &TapArea::hoveredChanged, this, &PillMenuEntry::hoveredChanged);
    connect(area_, &TapArea::tapped, this, &PillMenuEntry::triggered);
}

void PillMenuEntry::paint(QPainter& painter) {
    const QRectF rect = boundingRect();
    if (highlighted_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(highlight);
        painter.drawRoundedRect(rect, cornerRadius, cornerRadius);
    }
    painter.setFont(style::font(13));
    painter.setPen(style::text);
    painter.drawText(rect.adjusted(indent, 0, 0, 0), Qt::AlignVCenter | Qt::TextSingleLine, text_);
}

void PillMenuEntry::setHighlighted(bool highlighted) {
    highlighted_ = highlighted;
    area_->setFocused(highlighted);
    update();
}

} // namespace brellowind
