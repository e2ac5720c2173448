#pragma once

#include "session/x11/XClient.h"

namespace brellowind::test {

/// The settings manager of a desktop, as far as it tells programs how dense the screen is. It is
/// there as long as this lives; fails the running test when it cannot be.
class XSettings {
public:
    XSettings(const QString& display, int dotsPerInch);

    /// Changes the density for all programs that listen.
    void setDotsPerInch(int dotsPerInch);

private:
    XClient client_;
    xcb_window_t window_;
    quint32 serial_ = 0;
};

} // namespace brellowind::test
