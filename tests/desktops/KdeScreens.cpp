// SPDX-License-Identifier: MIT

#include "desktops/KdeScreens.h"

#include <QFile>
#include <kde-output-device-v2-client-protocol.h>
#include <kde-output-management-v2-client-protocol.h>
#include <optional>

namespace brellowind::test {
namespace {

/// Each screen has a single mode.
void listenToMode(KdeScreen& screen, kde_output_device_mode_v2* mode) {
    static constexpr kde_output_device_mode_v2_listener listener{
        .size =
            [](void* data, kde_output_device_mode_v2*, std::int32_t width, std::int32_t height) {
                static_cast<KdeScreen*>(data)->pixels = {width, height};
            },
        .refresh = [](void*, kde_output_device_mode_v2*, std::int32_t) {},
        .preferred = [](void*, kde_output_device_mode_v2*) {},
        .removed = [](void*, kde_output_device_mode_v2*) {}};
    kde_output_device_mode_v2_add_listener(mode, &listener, &screen);
}

void listen(KdeScreen& screen) {
    using Device = kde_output_device_v2;
    // Assigned one by one, since later versions of the protocol have more events.
    static constexpr auto listener = [] {
        kde_output_device_v2_listener events{};
        events.geometry = [](void* data, Device*, std::int32_t x, std::int32_t y, std::int32_t,
                             std::int32_t, std::int32_t, const char*, const char*, std::int32_t) {
            static_cast<KdeScreen*>(data)->position = {x, y};
        };
        events.current_mode = [](void*, Device*, kde_output_device_mode_v2*) {};
        events.mode = [](void* data, Device*, kde_output_device_mode_v2* mode) {
            listenToMode(*static_cast<KdeScreen*>(data), mode);
        };
        events.done = [](void*, Device*) {};
        events.scale = [](void* data, Device*, wl_fixed_t scale) {
            static_cast<KdeScreen*>(data)->scale = wl_fixed_to_double(scale);
        };
        events.edid = [](void*, Device*, const char*) {};
        events.enabled = [](void* data, Device*, std::int32_t enabled) {
            static_cast<KdeScreen*>(data)->isEnabled = enabled != 0;
        };
        events.uuid = [](void*, Device*, const char*) {};
        events.serial_number = [](void*, Device*, const char*) {};
        events.eisa_id = [](void*, Device*, const char*) {};
        events.capabilities = [](void*, Device*, std::uint32_t) {};
        events.overscan = [](void*, Device*, std::uint32_t) {};
        events.vrr_policy = [](void*, Device*, std::uint32_t) {};
        events.rgb_range = [](void*, Device*, std::uint32_t) {};
        events.name = [](void* data, Device*, const char* name) {
            static_cast<KdeScreen*>(data)->name = QString::fromUtf8(name);
        };
        return events;
    }();
    kde_output_device_v2_add_listener(screen.device, &listener, &screen);
}

} // namespace

KdeScreens::KdeScreens(const QString& socket) : connection_(QFile::encodeName(socket).constData()) {
    for (auto* device :
         connection_.bindAll<kde_output_device_v2>(kde_output_device_v2_interface, 2))
        listen(screens_.emplace_back(KdeScreen{device, {}, {}, {}, 1, false}));
    connection_.finish();
    screens_.sort(
        [](const KdeScreen& one, const KdeScreen& other) { return one.name < other.name; });
}

void KdeScreens::setScale(const KdeScreen& screen, double scale) {
    apply([&](kde_output_configuration_v2* configuration) {
        kde_output_configuration_v2_scale(configuration, screen.device,
                                          wl_fixed_from_double(scale));
    });
}

void KdeScreens::setEnabled(const KdeScreen& screen, bool isEnabled) {
    apply([&](kde_output_configuration_v2* configuration) {
        kde_output_configuration_v2_enable(configuration, screen.device, isEnabled);
    });
}

template <class Change>
void KdeScreens::apply(const Change& change) {
    static constexpr auto listener = [] {
        kde_output_configuration_v2_listener events{};
        events.applied = [](void* data, kde_output_configuration_v2*) {
            *static_cast<std::optional<bool>*>(data) = true;
        };
        events.failed = [](void* data, kde_output_configuration_v2*) {
            *static_cast<std::optional<bool>*>(data) = false;
        };
        return events;
    }();
    auto* management =
        connection_.bind<kde_output_management_v2>(kde_output_management_v2_interface, 2);
    auto* configuration = kde_output_management_v2_create_configuration(management);
    std::optional<bool> isApplied;
    kde_output_configuration_v2_add_listener(configuration, &listener, &isApplied);
    change(configuration);
    kde_output_configuration_v2_apply(configuration);
    connection_.finish();
    kde_output_configuration_v2_destroy(configuration);
    if (!isApplied.value_or(false))
        throw std::runtime_error("KWin refuses to change its screens");
}

} // namespace brellowind::test
