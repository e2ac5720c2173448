// SPDX-License-Identifier: MIT

#pragma once

#include <QRasterWindow>

namespace brellowind::demo {

/// A full-screen backdrop for the pictures.
class Backdrop : public QRasterWindow {
public:
    Backdrop();

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace brellowind::demo
