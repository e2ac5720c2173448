#include "views/scene/MenuWindow.h"

#include <QKeyEvent>

namespace brellowind {

void MenuWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
}

} // namespace brellowind
