// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/WaylandConnection.h"

#include <QPoint>
#include <QSize>
#include <QString>
#include <list>

struct kde_output_device_v2;

namespace brellowind::test {

/// A screen of KWin, enabled or not.
struct KdeScreen {
    kde_output_device_v2* device;
    QString name;
    QPoint position; ///< in points
    QSize pixels;
    double scale;
    bool isEnabled;
};

/// The screens of KWin at construction, and synchronous changes of them. Throws std::runtime_error
/// if KWin refuses a change.
class KdeScreens {
public:
    explicit KdeScreens(const QString& socket);

    const std::list<KdeScreen>& all() const { return screens_; }

    void setScale(const KdeScreen& screen, double scale);
    void setEnabled(const KdeScreen& screen, bool isEnabled);

private:
    template <class Change>
    void apply(const Change& change);

    WaylandConnection connection_;
    std::list<KdeScreen> screens_;
};

} // namespace brellowind::test
