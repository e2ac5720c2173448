// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/UserSession.h"

#include <QImage>
#include <QObject>

namespace brellowind::test {

/// A screenshot of a screen of mutter, from a screencast of one frame.
class MutterPicture : public QObject {
    Q_OBJECT

public:
    static QImage take(const UserSession& session, const QString& screen);

private Q_SLOTS:
    void setNode(uint node) { node_ = node; }

private:
    MutterPicture() = default;

    uint node_ = 0; ///< of the PipeWire stream
};

} // namespace brellowind::test
