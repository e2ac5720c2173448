#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class MutterRemote;
struct MutterScreen;

/// mutter, GNOME's compositor, without the shell and animations. It has one screen to add, and no
/// layer shell. At whole scales it lays its screens out in pixels, as GNOME does, and at others in
/// points, which has to be known when it starts.
class Mutter : public Compositor {
public:
    explicit Mutter(const CompositorOptions& options);
    ~Mutter() override;

    QImage screenshot(const QString& screen = {}) const override;
    bool letsWindowsGrow() const override { return true; }
    void movePointerTo(QPointF place) override;
    void movePointerBy(QPointF distance) override;
    void button(int code, Stroke stroke) override;
    void key(int code, Stroke stroke) override;
    bool tap(QPointF place) override;
    QList<CompositorScreen> screens() const override;
    void setScale(double scale) override;
    bool setScreensOn(bool on) override;
    QString addScreen() override;
    bool removeScreen(const QString& name) override;

private:
    struct Pixel {
        QString screen;
        QPointF place;
    };

    /// Uses each device once: mutter has none that was never used.
    void wakeDevices();

    /// As GNOME's settings daemon does, since X clients are not scaled where screens are laid out
    /// in pixels.
    void tellXClients(double scale);

    Pixel pixelAt(QPointF place) const;
    QRect geometry(const MutterScreen& screen) const;
    bool setEnabled(const QString& name, bool isEnabled);

    bool isLaidOutInPoints_;
    std::unique_ptr<demo::Companion> pipewire_;
    std::unique_ptr<demo::Companion> wireplumber_;
    std::unique_ptr<MutterRemote> remote_;
};

} // namespace brellowind::test
