// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/UserSession.h"

#include <QImage>
#include <QList>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QString>
#include <functional>
#include <memory>

namespace brellowind::test {

/// The configuration of a test's compositor.
struct CompositorOptions {
    QSize size{1280, 720}; ///< of the only screen, in points
    double scale = 1;      ///< pixels to a point
    bool xWayland = false;
};

/// A screen of a compositor.
struct CompositorScreen {
    QString name;
    QRect geometry; ///< in points
};

/// Buttons and keys have the numbers of linux/input-event-codes.h.
enum class Stroke { down, up };

/// A headless Wayland compositor in a private session, with simulated pointer and keyboard. Ends
/// all processes that it has started. Positions are in points of the desktop. Functions return when
/// the compositor has received the input; clients receive it soon after. On failure they throw a
/// DesktopFailure.
class Compositor {
public:
    /// "sway", "kwin", "mutter" or "gnome-shell", ready for clients.
    static std::unique_ptr<Compositor> make(const QString& name, const CompositorOptions& options);

    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;
    virtual ~Compositor();

    /// Starts a program as the compositor's user, the only one that XWayland accepts.
    std::unique_ptr<demo::Companion> start(const QString& program,
                                           const QStringList& arguments = {}) const {
        return session_.start(program, arguments);
    }

    /// The session; its environment has WAYLAND_DISPLAY, with XWayland DISPLAY, and the bus.
    const UserSession& session() const { return session_; }

    /// The socket, with its folder.
    QString socket() const;

    bool isRunning() const { return process_ && process_->isRunning(); }

    /// Kills the compositor.
    void kill();

    /// A screenshot of a screen in pixels, without the pointer; by default of the first screen.
    virtual QImage screenshot(const QString& screen = {}) const = 0;

    /// Whether windows are initially smaller than requested.
    virtual bool letsWindowsGrow() const { return false; }

    virtual void movePointerTo(QPointF place) = 0;
    virtual void movePointerBy(QPointF distance) = 0; ///< as a mouse does
    virtual void button(int code, Stroke stroke) = 0;
    virtual void key(int code, Stroke stroke) = 0;

    /// Moves the pointer and clicks a button, by default the primary one.
    void click(QPointF place, int code = primaryButton);

    /// Presses and releases a key.
    void type(int code);

    /// Taps the touch screen; false if the compositor has no simulated touch screen.
    virtual bool tap(QPointF place);

    virtual QList<CompositorScreen> screens() const = 0;

    /// Changes the scale of the first screen, not its resolution.
    virtual void setScale(double scale) = 0;

    /// Switches all screens off or on, as an idle desktop does; false if not supported.
    virtual bool setScreensOn(bool on);

    /// Adds a screen at the right and returns its name; empty if not supported.
    virtual QString addScreen();

    /// Disconnects a screen; false if not supported.
    virtual bool removeScreen(const QString& name);

    static constexpr int primaryButton = 0x110;
    static constexpr int secondaryButton = 0x111;

protected:
    Compositor() = default;

    UserSession& mutableSession() { return session_; }

    /// What the compositor has written to its output.
    QByteArray output() const;

    /// Starts the compositor. Its output goes to a file, which failures quote.
    void launch(const QString& program, const QStringList& arguments);

    /// The program and its argument that a compositor has to start among its clients for
    /// awaitDisplays(), and the same as a line for a shell.
    QStringList displayTeller() const;
    QString displayTellerCommand() const;

    /// Waits until the compositor has started that, and sets the variables of its displays.
    void awaitDisplays();

    /// Waits until clients have bound pointer and keyboard: earlier input is lost.
    void awaitDevices() const;

    /// Waits until `condition` holds. If the compositor exits, or after a timeout, throws a
    /// DesktopFailure with the awaited condition and the compositor's output.
    void await(const char* what, const std::function<bool()>& condition) const;

    /// Ends the compositor. Called by the destructors of the subclasses.
    void end();

private:
    UserSession session_;
    std::unique_ptr<demo::Companion> process_;
};

} // namespace brellowind::test
