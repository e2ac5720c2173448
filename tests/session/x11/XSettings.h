// SPDX-License-Identifier: MIT

#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// An XSETTINGS manager that provides the screen's density, until it is destroyed. Fails the test
/// if it cannot own the selection.
class XSettings {
public:
    XSettings(const QString& display, int dotsPerInch);

    /// Changes the density.
    void setDotsPerInch(int dotsPerInch);

private:
    XClient client_;
    xcb_window_t window_;
    quint32 serial_ = 0;
};

} // namespace brellowind::test
