// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11PointerUse.h"

#include <string_view>
#include <utility>
#include <xcb/sync.h>

namespace brellowind::platform {
namespace {

constexpr std::string_view counterName = "DEVICEIDLETIME 2"; ///< of the first pointer
constexpr std::uint32_t restMs = 100;

/// xcb's own reader of the name counts the padding that a C structure has and the protocol has not.
std::string_view nameOf(const xcb_sync_systemcounter_t& counter) {
    constexpr std::size_t nameOffset = 14;
    return {reinterpret_cast<const char*>(&counter) + nameOffset, counter.name_len};
}

/// XCB_NONE if the server has no such counter.
xcb_sync_counter_t idleCounter(const X11Connection& x11) {
    if (!x11.ask<xcb_sync_initialize, xcb_sync_initialize_reply>(
            std::uint8_t(XCB_SYNC_MAJOR_VERSION), std::uint8_t(XCB_SYNC_MINOR_VERSION)))
        return XCB_NONE;
    const auto list = x11.ask<xcb_sync_list_system_counters, xcb_sync_list_system_counters_reply>();
    if (!list)
        return XCB_NONE;
    auto counter = xcb_sync_list_system_counters_counters_iterator(list.get());
    for (; counter.rem > 0; xcb_sync_systemcounter_next(&counter))
        if (nameOf(*counter.data) == counterName)
            return counter.data->counter;
    return XCB_NONE;
}

} // namespace

X11PointerUse::X11PointerUse(std::function<void()> onUse)
    : onUse_(std::move(onUse)), observer_([this](const auto& event) { return handle(event); }) {
    const auto* extension = xcb_get_extension_data(x11_.get(), &xcb_sync_id);
    if (!extension || !extension->present)
        return;
    const auto counter = idleCounter(x11_);
    if (counter == XCB_NONE)
        return;
    notify_ = extension->first_event + XCB_SYNC_ALARM_NOTIFY;
    alarm_ = xcb_generate_id(x11_.get());
    xcb_sync_create_alarm_value_list_t values{};
    values.counter = counter;
    values.valueType = XCB_SYNC_VALUETYPE_ABSOLUTE;
    values.value = {0, restMs};
    values.testType = XCB_SYNC_TESTTYPE_NEGATIVE_TRANSITION;
    values.events = 1;
    xcb_sync_create_alarm_aux(x11_.get(), alarm_,
                              XCB_SYNC_CA_COUNTER | XCB_SYNC_CA_VALUE_TYPE | XCB_SYNC_CA_VALUE |
                                  XCB_SYNC_CA_TEST_TYPE | XCB_SYNC_CA_DELTA | XCB_SYNC_CA_EVENTS,
                              &values);
    x11_.flush();
}

X11PointerUse::~X11PointerUse() {
    if (alarm_ != XCB_NONE)
        xcb_sync_destroy_alarm(x11_.get(), alarm_);
}

bool X11PointerUse::handle(const xcb_generic_event_t& event) {
    if (eventType(event) != notify_ ||
        eventAs<xcb_sync_alarm_notify_event_t>(event).alarm != alarm_)
        return false;
    onUse_();
    return true;
}

} // namespace brellowind::platform
