// SPDX-License-Identifier: MIT

#include "settings/window/SettingsWindow.h"

#include <QtGlobal>

/// Implements `MakeSettingsOpener`.
extern "C" Q_DECL_EXPORT brellowind::SettingsOpener*
brellowindMakeSettingsOpener(const brellowind::SettingsServices& services) {
    return new brellowind::SettingsWindow(services);
}
