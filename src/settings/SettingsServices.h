// SPDX-License-Identifier: MIT

#pragma once

#include "platform/LinkOpener.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/MainLoop.h"
#include "platform/ProductConstants.h"
#include "platform/TaskRunner.h"
#include "settings/SettingsRouter.h"
#include "settings/UpdateChecker.h"

namespace brellowind {

/// References to the services that the settings use.
struct SettingsServices {
    platform::MainLoop& mainLoop;
    TaskRunner& tasks;
    platform::Log& log;
    platform::LoginItem& loginItem;
    platform::LinkOpener& links;
    const platform::ProductConstants& constants;
    SettingsRouter& router;
    UpdateChecker& updater;
};

} // namespace brellowind
