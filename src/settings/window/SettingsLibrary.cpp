#include "settings/window/SettingsWindow.h"

#include <QtGlobal>

/// What `MakeSettingsOpener` is in the library that holds the settings window.
extern "C" Q_DECL_EXPORT brellowind::SettingsOpener*
brellowindMakeSettingsOpener(const brellowind::SettingsServices& services) {
    return new brellowind::SettingsWindow(services);
}
