#pragma once

#include <QObject>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// Makes a popup of a window on every system: while it is shown every click and key is its own, and
/// it closes on Escape and on a press beside it. That press does nothing else.
class PopupGrab : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged REQUIRED)

public:
    using QObject::QObject;

    QQuickWindow* window() const { return window_; }
    void setWindow(QQuickWindow* window);

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void windowChanged();

private:
    void follow(bool shown);
    void grab(bool grabbed);

    QQuickWindow* window_ = nullptr;
};

} // namespace brellowind
