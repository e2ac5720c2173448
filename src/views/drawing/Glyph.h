// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

namespace brellowind {

/// A white symbol, scaled to fit and centred.
class Glyph : public PainterItem {
    Q_OBJECT

public:
    enum Kind { PlayFill, PauseFill };

    explicit Glyph(Item* parent = nullptr);

    void setKind(Kind kind);

    void paint(QPainter& painter) override;

private:
    Kind kind_ = PlayFill;
};

} // namespace brellowind
