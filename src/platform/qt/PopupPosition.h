// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowSystem.h"

#include <QPoint>

namespace brellowind::platform {

/// The top left corner of a popup in Qt's coordinates: at its point, moved into the screen there.
QPoint popupPosition(const Popup& popup);

} // namespace brellowind::platform
