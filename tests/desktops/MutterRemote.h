// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

#include <QMap>

namespace brellowind::test {

/// Remote desktop input devices, during this object's lifetime.
class MutterRemote {
public:
    /// The session must outlive this.
    explicit MutterRemote(const UserSession& session);
    MutterRemote(const MutterRemote&) = delete;
    MutterRemote& operator=(const MutterRemote&) = delete;
    ~MutterRemote();

    /// Moves to a pixel of a screen.
    void movePointerTo(const QString& screen, QPointF pixel);

    /// In pixels.
    void movePointerBy(QPointF distance);

    void button(int code, Stroke stroke);
    void key(int code, Stroke stroke);

private:
    QString stream(const QString& screen);
    void act(const char* deed, const QVariantList& arguments);

    const UserSession& session_;
    QString remote_;
    QString cast_;
    QMap<QString, QString> streams_; ///< by their screens
};

} // namespace brellowind::test
