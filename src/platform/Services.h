#pragma once

#include "platform/Clock.h"
#include "platform/HttpClient.h"
#include "platform/Log.h"
#include "platform/MainLoop.h"
#include "platform/Pointer.h"
#include "platform/ProductConstants.h"
#include "platform/RunningApplications.h"
#include "platform/Screens.h"
#include "platform/Scripting.h"
#include "platform/TaskRunner.h"

namespace brellowind::platform {

/// The services of the machine that the program stands on. It owns none of them.
struct Services {
    MainLoop& mainLoop;
    TaskRunner& tasks;
    Clock& clock;
    Log& log;
    HttpClient& http;
    Scripting& scripting;
    RunningApplications& runningApplications;
    Screens& screens;
    Pointer& pointer;
    const ProductConstants& constants;
};

/// The installed services. Stops the program when none are.
Services& services();

/// Installs `services` for as long as it lives, then puts back what was there before.
class ServicesScope {
public:
    explicit ServicesScope(Services services);
    ServicesScope(const ServicesScope&) = delete;
    ServicesScope& operator=(const ServicesScope&) = delete;
    ~ServicesScope();

private:
    Services services_;
    Services* previous_;
};

} // namespace brellowind::platform
