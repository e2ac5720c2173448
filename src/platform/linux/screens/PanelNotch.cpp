// SPDX-License-Identifier: MIT

#include "platform/linux/screens/PanelNotch.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brellowind::platform {
namespace {

constexpr std::array<std::string_view, 3> internalConnectors{"eDP", "LVDS", "DSI"};

constexpr std::array<Size, 4> notchedModes{
    {{2560, 1664}, {2880, 1864}, {3024, 1964}, {3456, 2234}}};

bool isInternal(std::string_view outputName) {
    return std::ranges::any_of(internalConnectors, [outputName](std::string_view connector) {
        return outputName.starts_with(connector);
    });
}

} // namespace

double notchInset(std::string_view outputName, Size pixels, double scale) {
    if (!isInternal(outputName))
        return 0;
    const double rounding = scale / 2;
    const auto* mode = std::ranges::find_if(notchedModes, [&](const Size& known) {
        return std::abs(known.width - pixels.width) <= rounding &&
               std::abs(known.height - pixels.height) <= rounding;
    });
    if (mode == notchedModes.end())
        return 0;
    return (mode->height - mode->width * 10 / 16) / scale;
}

} // namespace brellowind::platform
