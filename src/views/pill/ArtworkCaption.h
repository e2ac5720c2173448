// SPDX-License-Identifier: MIT

#pragma once

#include "views/drawing/VisualEffectBlur.h"

#include <QColor>
#include <QFont>
#include <QString>

namespace brellowind {

class FrameDriver;
class LyricText;

/// Artist and title on the lower edge of the enlarged artwork.
class ArtworkCaption : public VisualEffectBlur {
    Q_OBJECT

public:
    /// `frames` must outlive this object.
    ArtworkCaption(FrameDriver& frames, Item* parent);

    void setTexts(const QString& artist, const QString& title);

private:
    void show(LyricText*& line, const QString& text, const QFont& font, const QColor& color,
              double top);

    FrameDriver& frames_;
    LyricText* artist_ = nullptr;
    LyricText* title_ = nullptr;
};

} // namespace brellowind
