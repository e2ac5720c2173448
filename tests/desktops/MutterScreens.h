// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/UserSession.h"

#include <QList>
#include <QPoint>
#include <QSize>

namespace brellowind::test {

/// A screen of mutter.
struct MutterScreen {
    QString name;
    QString mode;
    QSize pixels;
    QPoint position; ///< in pixels
    double scale = 1;
};

/// The screens of mutter over its bus interface.
class MutterScreens {
public:
    /// The session must outlive this.
    explicit MutterScreens(const UserSession& session) : session_(session) {}

    QList<MutterScreen> all();

    /// Applies the configuration `screens`.
    void apply(const QList<MutterScreen>& screens);

private:
    const UserSession& session_;
    uint serial_ = 0;
};

} // namespace brellowind::test
