// SPDX-License-Identifier: MIT

#include "platform/linux/screens/QtScreens.h"

#include "platform/linux/screens/PanelNotch.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>
#include <utility>

namespace brellowind::platform {
namespace {

/// Qt's placeholder for a missing screen. Without screens on an X server Qt keeps the last one,
/// which looks like the screen of a server without monitors.
bool isPlaceholder(const QScreen& screen) {
    return screen.name().isEmpty() || screen.size().isEmpty();
}

Rect rect(const QRect& rect) {
    return {double(rect.x()), double(rect.y()), double(rect.width()), double(rect.height())};
}

/// Approximate: Qt does not expose the exact size.
Size pixelSize(const QScreen& screen) {
    const double scale = screen.devicePixelRatio();
    return {std::round(screen.size().width() * scale), std::round(screen.size().height() * scale)};
}

ScreenPlacement placement(const QScreen& screen) {
    const Rect logical = rect(screen.geometry());
    const Size pixels = pixelSize(screen);
    return {
        {logical.x, logical.y, pixels.width, pixels.height}, screen.devicePixelRatio(), logical};
}

Screen description(const QScreen& screen, const ScreenCoordinates& coordinates) {
    return {.frame = coordinates.desktopRect(rect(screen.geometry())),
            .visibleFrame = coordinates.desktopRect(rect(screen.availableGeometry())),
            .topSafeAreaInset = notchInset(screen.name().toStdString(), pixelSize(screen),
                                           screen.devicePixelRatio())};
}

} // namespace

ScreenArrangement ScreenArrangement::current() {
    QList<QScreen*> screens;
    std::vector<ScreenPlacement> placements;
    for (auto* screen : QGuiApplication::screens()) {
        if (isPlaceholder(*screen))
            continue;
        screens.append(screen);
        placements.push_back(placement(*screen));
    }
    const auto primary = std::max(screens.indexOf(QGuiApplication::primaryScreen()), qsizetype(0));
    return {screens, {std::move(placements), static_cast<std::size_t>(primary)}};
}

QtScreens::QtScreens(MainLoop& mainLoop)
    : announcement_(mainLoop.onNextTurn([this] { observers_->notify(); })) {
    const auto announce = [this] { announcement_->request(); };
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        observe(screen);
        announcement_->request();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, announce);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, announce);
    for (auto* screen : QGuiApplication::screens())
        observe(screen);
}

std::vector<Screen> QtScreens::screens() {
    const auto arrangement = ScreenArrangement::current();
    std::vector<Screen> all;
    for (const auto* screen : arrangement.screens)
        all.push_back(description(*screen, arrangement.coordinates));
    return all;
}

std::optional<Screen> QtScreens::main() {
    const auto arrangement = ScreenArrangement::current();
    auto* primary = QGuiApplication::primaryScreen();
    if (!arrangement.screens.contains(primary))
        return std::nullopt;
    return description(*primary, arrangement.coordinates);
}

Subscription QtScreens::onChange(Observers::Callback callback) {
    return observers_->add(std::move(callback));
}

void QtScreens::observe(QScreen* screen) {
    const auto announce = [this] { announcement_->request(); };
    connect(screen, &QScreen::geometryChanged, this, announce);
    connect(screen, &QScreen::availableGeometryChanged, this, announce);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, announce);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, announce);
}

} // namespace brellowind::platform
