#pragma once

#include "platform/Application.h"
#include "platform/Clock.h"
#include "platform/HttpClient.h"
#include "platform/Images.h"
#include "platform/LinkOpener.h"
#include "platform/LocalFiles.h"
#include "platform/Log.h"
#include "platform/LoginItem.h"
#include "platform/MainLoop.h"
#include "platform/Pointer.h"
#include "platform/ProductConstants.h"
#include "platform/RunningApplications.h"
#include "platform/Screens.h"
#include "platform/Scripting.h"
#include "platform/TaskRunner.h"

#include <map>
#include <memory>
#include <typeindex>

namespace brellowind::platform {

/// The services of the machine that the program stands on. It owns none of them.
struct Services {
    MainLoop& mainLoop;
    TaskRunner& tasks;
    Clock& clock;
    Log& log;
    HttpClient& http;
    ImageDecoder& images;
    LocalFiles& files;
    Scripting& scripting;
    RunningApplications& runningApplications;
    Screens& screens;
    Pointer& pointer;
    Application& application;
    LinkOpener& links;
    LoginItem& loginItem;
    const ProductConstants& constants;
};

/// The installed services. Stops the program when none are.
Services& services();

/// Where the shared instance of `type` is kept: empty until somebody puts it there, and emptied
/// when the installed services go. `sharedInstance` is made on it.
std::shared_ptr<void>& sharedSlot(std::type_index type);

/// Installs `services` for as long as it lives, then puts back what was there before. The shared
/// instances that were made meanwhile go with it.
class ServicesScope {
public:
    explicit ServicesScope(Services services);
    ServicesScope(const ServicesScope&) = delete;
    ServicesScope& operator=(const ServicesScope&) = delete;
    ~ServicesScope();

private:
    friend Services& services();
    friend std::shared_ptr<void>& sharedSlot(std::type_index type);

    static ServicesScope& innermost();

    Services services_;
    std::map<std::type_index, std::shared_ptr<void>> shared_;
    ServicesScope* previous_;
};

} // namespace brellowind::platform
