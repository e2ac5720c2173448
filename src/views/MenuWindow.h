#pragma once

#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// A window that pops up over all others. It holds pointer and keyboard while it is shown, so that
/// a press anywhere else or the Escape key closes it. Its corners are round, also where nothing
/// makes windows transparent.
class MenuWindow : public QQuickWindow {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius READ radius CONSTANT)

public:
    explicit MenuWindow(QWindow* parent = nullptr);

    double radius() const { return 10; }

protected:
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void hold(bool held);

    bool held_ = false;
};

} // namespace brellowind
