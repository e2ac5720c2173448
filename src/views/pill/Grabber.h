// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

#include <QColor>

namespace brellowind {

class NotchRootView;
class TapArea;
struct PillContent;
struct PillMotion;

/// The handle at the lower edge of a hovered pill.
class Grabber : public PainterItem {
    Q_OBJECT

public:
    Grabber(NotchRootView& view, const PillContent& content, Item* parent);

    /// Updates from the content.
    void refresh();

    void layOut(const PillMotion& motion);

    void paint(QPainter& painter) override;

private:
    const PillContent& content_;
    TapArea* area_;
    QColor color_;
};

} // namespace brellowind
