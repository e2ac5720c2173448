// SPDX-License-Identifier: MIT

// Simulated input for KWin, which accepts it from programs of its own user only. Executes commands
// from standard input, one per line, and prints the line "done" after each, and when it is ready:
//     move X Y | move-by X Y | button CODE 0|1 | key CODE 0|1 | tap X Y
#include "desktops/WaylandConnection.h"

#include <cstdio>
#include <exception>
#include <fake-input-client-protocol.h>
#include <iostream>
#include <string>

namespace {

using namespace brellowind::test;

void act(org_kde_kwin_fake_input* input, const std::string& deed, double first, double second) {
    const auto x = wl_fixed_from_double(first);
    const auto y = wl_fixed_from_double(second);
    const auto code = static_cast<std::uint32_t>(first);
    const auto state = static_cast<std::uint32_t>(second);
    if (deed == "move") {
        org_kde_kwin_fake_input_pointer_motion_absolute(input, x, y);
    } else if (deed == "move-by") {
        org_kde_kwin_fake_input_pointer_motion(input, x, y);
    } else if (deed == "button") {
        org_kde_kwin_fake_input_button(input, code, state);
    } else if (deed == "key") {
        org_kde_kwin_fake_input_keyboard_key(input, code, state);
    } else if (deed == "tap") {
        constexpr std::uint32_t finger = 1;
        org_kde_kwin_fake_input_touch_down(input, finger, x, y);
        org_kde_kwin_fake_input_touch_frame(input);
        org_kde_kwin_fake_input_touch_up(input, finger);
        org_kde_kwin_fake_input_touch_frame(input);
    } else {
        throw std::runtime_error("no such deed: " + deed);
    }
}

} // namespace

int main() try {
    const WaylandConnection connection(nullptr);
    auto* input = connection.bind<org_kde_kwin_fake_input>(org_kde_kwin_fake_input_interface, 4);
    org_kde_kwin_fake_input_authenticate(input, "a test", "to act for a person");
    std::string deed;
    double first = 0;
    double second = 0;
    const auto finish = [&] {
        connection.finish();
        std::cout << "done" << std::endl;
    };
    finish();
    while (std::cin >> deed >> first >> second) {
        act(input, deed, first, second);
        finish();
    }
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
