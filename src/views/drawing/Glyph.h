#pragma once

#include "views/drawing/PainterItem.h"

#include <QColor>
#include <QPainterPath>

namespace brellowind {

/// A symbol of one colour, scaled to fit and centred.
class Glyph : public brellowind::PainterItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY kindChanged REQUIRED)
    Q_PROPERTY(QColor color MEMBER color_)

public:
    enum Kind { PlayFill, PauseFill };
    Q_ENUM(Kind)

    explicit Glyph(QQuickItem* parent = nullptr);

    Kind kind() const { return kind_; }
    void setKind(Kind kind);

    void paint(QPainter& painter) override;

Q_SIGNALS:
    void kindChanged();

private:
    Kind kind_ = PlayFill;
    QColor color_ = Qt::white;
};

} // namespace brellowind
