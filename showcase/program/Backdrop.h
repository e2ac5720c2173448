#pragma once

#include <QRasterWindow>

namespace brellowind::demo {

/// A quiet desktop for the pictures: it fills the screen beneath the pill.
class Backdrop : public QRasterWindow {
public:
    Backdrop();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brellowind::demo
