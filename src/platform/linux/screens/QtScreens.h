// SPDX-License-Identifier: MIT

#pragma once

#include "platform/MainLoop.h"
#include "platform/Screens.h"
#include "platform/linux/screens/ScreenCoordinates.h"

#include <QList>
#include <QObject>
#include <memory>

class QScreen;

namespace brellowind::platform {

/// The connected screens of Qt and their coordinates, with the same indices.
struct ScreenArrangement {
    QList<QScreen*> screens;
    ScreenCoordinates coordinates;

    /// Empty if Qt has nothing but its placeholder for a missing screen.
    static ScreenArrangement current();
};

/// The screens of the Qt application, which must exist.
class QtScreens final : public QObject, public Screens {
public:
    explicit QtScreens(MainLoop& mainLoop);

    std::vector<Screen> screens() override;
    std::optional<Screen> main() override;

    /// Notifies on the next turn of the main loop, once for several changes.
    Subscription onChange(Observers::Callback callback) override;

private:
    void observe(QScreen* screen);

    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
    std::unique_ptr<NextTurn> announcement_;
};

} // namespace brellowind::platform
