#pragma once

#include "views/drawing/VisualEffectBlur.h"

#include <QString>

namespace brellowind {

/// Artist and title on the lower edge of the enlarged artwork, elided to its width.
class ArtworkCaption : public VisualEffectBlur {
    Q_OBJECT

public:
    explicit ArtworkCaption(Item* parent);

    void setTexts(const QString& artist, const QString& title);

    void paint(QPainter& painter) override;

private:
    QString artist_;
    QString title_;
};

} // namespace brellowind
