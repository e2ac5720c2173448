#pragma once

#include "desktops/UserSession.h"

#include <QImage>
#include <QObject>

namespace brellowind::test {

/// What a screen of mutter shows, by a recording of one frame.
class MutterPicture : public QObject {
    Q_OBJECT

public:
    static QImage take(const UserSession& session, const QString& screen);

private Q_SLOTS:
    void setNode(uint node) { node_ = node; }

private:
    MutterPicture() = default;

    uint node_ = 0; ///< of the stream in pipewire, which numbers them from one
};

} // namespace brellowind::test
