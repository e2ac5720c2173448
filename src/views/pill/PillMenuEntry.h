#pragma once

#include "views/scene/Item.h"

#include <QString>

namespace brellowind {

/// One entry of the context menu, bright while the pointer is over it.
class PillMenuEntry : public PainterItem {
    Q_OBJECT

public:
    static constexpr double entryWidth = 190;

    PillMenuEntry(const QString& text, Item* parent);

    void paint(QPainter& painter) override;

Q_SIGNALS:
    void triggered();

private:
    void setHighlighted(bool highlighted);

    QString text_;
    bool highlighted_ = false;
};

} // namespace brellowind
