// SPDX-License-Identifier: MIT

#include "settings/UpdateCard.h"

#include <utility>

namespace brellowind {

UpdateCard updateCard(const UpdateChecker::State& state, std::string_view currentVersion) {
    using Action = UpdateCard::Action;
    using Case = UpdateChecker::State::Case;
    using Color = UpdateCard::Color;

    std::string version = "ver-";
    version += currentVersion;
    switch (state.which()) {
    case Case::available:
        return {.icon = "arrow.down.circle.fill",
                .color = Color::yellow,
                .tintOpacity = 0.1,
                .title = "Update Available",
                .buttonLabel = "Download update",
                .buttonAction = Action::openDownload,
                .versionText = version + "  →  ver-" + state.release()->version};
    case Case::checking:
        return {.icon = {},
                .color = Color::teal,
                .tintOpacity = 0.12,
                .title = "Checking for updates",
                .buttonLabel = "Checking…",
                .buttonAction = Action::none,
                .versionText = std::move(version)};
    case Case::failed:
        return {.icon = "exclamationmark.circle.fill",
                .color = Color::red,
                .tintOpacity = 0.1,
                .title = "Update check failed",
                .buttonLabel = "Try again",
                .buttonAction = Action::check,
                .versionText = std::move(version)};
    case Case::idle: // shown as up to date until a check
    case Case::upToDate:
        break;
    }
    return {.icon = "checkmark.circle.fill",
            .color = Color::green,
            .tintOpacity = 0.12,
            .title = "Up to date",
            .buttonLabel = "Check update",
            .buttonAction = Action::check,
            .versionText = std::move(version)};
}

} // namespace brellowind
