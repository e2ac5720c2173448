// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QString>

namespace brellowind {

class TapArea;

/// One entry of the context menu.
class PillMenuEntry : public PainterItem {
    Q_OBJECT

public:
    static constexpr double entryWidth = 190;

    PillMenuEntry(const QString& text, Item* parent);

    const QString& text() const { return text_; }

    void setHighlighted(bool highlighted);

    void paint(QPainter& painter) override;

Q_SIGNALS:
    void triggered();
    void hoveredChanged(bool hovered);

private:
    QString text_;
    TapArea* area_;
    bool highlighted_ = false;
};

} // namespace brellowind
