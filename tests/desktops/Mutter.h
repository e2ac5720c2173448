// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class MutterRemote;
struct MutterScreen;

/// mutter, GNOME's compositor, alone or in GNOME Shell, without animations. There is no layer
/// shell. The layout is in pixels and the scale an integer, as with GNOME; with a fractional scale
/// at the start the layout is in points.
class Mutter : public Compositor {
public:
    enum class Program { mutter, gnomeShell };

    Mutter(Program program, const CompositorOptions& options);
    ~Mutter() override;

    QImage screenshot(const QString& screen = {}) const override;
    bool letsWindowsGrow() const override { return true; }
    void movePointerTo(QPointF place) override;
    void movePointerBy(QPointF distance) override;
    void button(int code, Stroke stroke) override;
    void key(int code, Stroke stroke) override;
    QList<CompositorScreen> screens() const override;
    void setScale(double scale) override;

private:
    struct Pixel {
        QString screen;
        QPointF place;
    };

    void launchMutter(const CompositorOptions& options);
    void launchShell(const CompositorOptions& options);

    /// The first group of `pattern` in the output of the compositor.
    QString awaitOutput(const char* pattern) const;

    /// Uses each device once: mutter creates devices on first use.
    void wakeDevices();

    /// As GNOME's settings daemon does, since X clients are not scaled with a layout in pixels.
    void tellXClients(double scale);

    Pixel pixelAt(QPointF place) const;

    /// The units of the layout to a point on `screen`.
    double layoutScale(const MutterScreen& screen) const;

    /// In points.
    QRect geometry(const MutterScreen& screen) const;

    bool isLayoutInPixels_;

    std::unique_ptr<demo::Companion> systemBus_;
    std::unique_ptr<demo::Companion> pipewire_;
    std::unique_ptr<demo::Companion> wireplumber_;
    std::unique_ptr<MutterRemote> remote_;
};

} // namespace brellowind::test
