// SPDX-License-Identifier: MIT

#pragma once

#include "settings/UpdateChecker.h"

#include <string>
#include <string_view>

namespace brellowind {

/// The content of the update card in the settings window.
struct UpdateCard {
    enum class Color { yellow, teal, red, green };
    enum class Action { none, check, openDownload };

    std::string_view icon; ///< a symbol's name; empty: a small progress indicator
    Color color;           ///< of the icon and, at `tintOpacity`, of the card's background
    double tintOpacity;
    std::string_view title;
    std::string_view buttonLabel;
    Action buttonAction;
    std::string versionText;

    bool buttonEnabled() const { return buttonAction != Action::none; }

    bool operator==(const UpdateCard&) const = default;
};

UpdateCard updateCard(const UpdateChecker::State& state, std::string_view currentVersion);

} // namespace brellowind
