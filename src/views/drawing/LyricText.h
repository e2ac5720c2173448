#pragma once

#include "views/drawing/PainterItem.h"
#include "views/drawing/TextLayer.h"
#include "views/motion/FrameDriver.h"

#include <QColor>
#include <QFont>
#include <list>

namespace brellowind {

/// One line of text in any script, as wide as it is and never cut. When its text changes, the old
/// line blurs and fades away while the new one sharpens and fades in, both about the same middle.
class LyricText : public brellowind::PainterItem, private Animated {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// A line that is not present is on its way out in the same manner, or gone.
    Q_PROPERTY(bool present READ isPresent WRITE setPresent NOTIFY presentChanged)
    Q_PROPERTY(QColor color MEMBER color_)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    /// The width that the present text takes; a line that goes does not count.
    Q_PROPERTY(double naturalWidth READ naturalWidth NOTIFY naturalWidthChanged)
    /// A wider line ends in an ellipsis; 0 lets every line be as wide as it is.
    Q_PROPERTY(double maximumWidth MEMBER maximumWidth_)

public:
    explicit LyricText(QQuickItem* parent = nullptr);
    ~LyricText() override;

    QString text() const { return text_; }
    void setText(const QString& text);

    bool isPresent() const { return present_; }
    void setPresent(bool present);

    QFont font() const { return font_; }
    void setFont(const QFont& font);

    double naturalWidth() const;

    void paint(QPainter& painter) override;
    QRectF paintedRect() const override;

Q_SIGNALS:
    void textChanged(const QString& text);
    void presentChanged();
    void fontChanged();
    void naturalWidthChanged();

protected:
    void componentComplete() override;

private:
    std::optional<double> advance(double now) override;
    void show(double now);
    void layOut();
    void followWidth();

    QString text_;
    bool present_ = true;
    QColor color_ = Qt::white;
    QFont font_;
    double maximumWidth_ = 0;
    std::list<TextLayer> layers_; ///< the last one is the present text, the others go
};

} // namespace brellowind
