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

/// What a test wants of the compositor that it starts.
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

/// A headless Wayland compositor in a session of its own, with a person at its pointer and
/// keyboard. Everything it has started ends with it. Places are in points of the desktop. What a
/// person does has reached the compositor when the function returns, and the clients soon after.
/// Functions throw a DesktopFailure when the compositor does not do what they say.
class Compositor {
public:
    /// "sway", "kwin" or "mutter", ready for clients.
    static std::unique_ptr<Compositor> make(const QString& name, const CompositorOptions& options);

    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;
    virtual ~Compositor();

    /// Starts a program as the compositor's user, who is the only one that XWayland admits.
    std::unique_ptr<demo::Companion> start(const QString& program,
                                           const QStringList& arguments = {}) const {
        return session_.start(program, arguments);
    }

    /// The session; its environment has WAYLAND_DISPLAY, with XWayland DISPLAY, and the bus.
    const UserSession& session() const { return session_; }

    /// The socket, with its folder.
    QString socket() const;

    bool isRunning() const { return process_ && process_->isRunning(); }

    /// Ends the compositor without a word to its clients.
    void kill();

    /// What a screen shows, in its pixels and without the pointer; the first screen without a name.
    virtual QImage screenshot(const QString& screen = {}) const = 0;

    /// Whether windows are smaller at first than they and their clients say.
    virtual bool letsWindowsGrow() const { return false; }

    virtual void movePointerTo(QPointF place) = 0;
    virtual void movePointerBy(QPointF distance) = 0; ///< as a mouse does
    virtual void button(int code, Stroke stroke) = 0;
    virtual void key(int code, Stroke stroke) = 0;

    /// Moves there, presses and releases a button; the primary one without a code.
    void click(QPointF place, int code = primaryButton);

    /// Presses and releases a key.
    void type(int code);

    /// A finger that taps; false where the compositor lets nobody act for one.
    virtual bool tap(QPointF place);

    virtual QList<CompositorScreen> screens() const = 0;

    /// Changes the scale of the first screen, which keeps its pixels.
    virtual void setScale(double scale) = 0;

    /// Switches all screens off, or on again, as an idle desktop does; false where the compositor
    /// cannot.
    virtual bool setScreensOn(bool on);

    /// Adds a screen at the right and returns its name; empty where the compositor cannot.
    virtual QString addScreen();

    /// Takes a screen away as if it were unplugged; false where the compositor cannot.
    virtual bool removeScreen(const QString& name);

    static constexpr int primaryButton = 0x110;
    static constexpr int secondaryButton = 0x111;

protected:
    Compositor() = default;

    UserSession& mutableSession() { return session_; }

    /// Starts the compositor; what it says goes to a file that failures quote.
    void launch(const QString& program, const QStringList& arguments);

    /// The program and its argument that a compositor has to start among its clients for
    /// awaitDisplays(), and the same as a line for a shell.
    QStringList displayTeller() const;
    QString displayTellerCommand() const;

    /// Waits until the compositor has started that, and sets the variables of its displays.
    void awaitDisplays();

    /// Waits until clients can have a pointer and a keyboard: what a person does before they have
    /// taken them is lost.
    void awaitDevices() const;

    /// Waits until `condition` holds. Throws a DesktopFailure that tells what was waited for, and
    /// what the compositor said, when it ends or takes too long.
    void await(const char* what, const std::function<bool()>& condition) const;

    /// Ends the compositor. Each kind calls it in its destructor, while it can still be asked.
    void end();

private:
    UserSession session_;
    std::unique_ptr<demo::Companion> process_;
};

} // namespace brellowind::test
