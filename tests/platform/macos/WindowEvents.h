// SPDX-License-Identifier: MIT

#pragma once

#include <QEvent>
#include <QMouseEvent>
#include <QRasterWindow>
#include <string>
#include <vector>

namespace brellowind::test {

/// A window that remembers what the pointer does to it.
class WindowEvents : public QRasterWindow {
public:
    std::vector<std::string> events; ///< such as "enter 3 4", "move 3 4", "press 3 4", "leave"

protected:
    bool event(QEvent* event) override {
        switch (event->type()) {
        case QEvent::Enter:
            add("enter", static_cast<QEnterEvent*>(event)->position());
            break;
        case QEvent::MouseMove:
            add("move", static_cast<QMouseEvent*>(event)->position());
            break;
        case QEvent::MouseButtonPress:
            add("press", static_cast<QMouseEvent*>(event)->position());
            break;
        case QEvent::Leave:
            events.emplace_back("leave");
            break;
        default:
            break;
        }
        return QRasterWindow::event(event);
    }

private:
    void add(const char* name, QPointF at) {
        events.push_back(std::string(name) + ' ' + std::to_string(int(at.x())) + ' ' +
                         std::to_string(int(at.y())));
    }
};

} // namespace brellowind::test
