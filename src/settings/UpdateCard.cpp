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
        version += "  →  ver-" + state.release()->version;
        return {"arrow.down.circle.fill", Color::yellow,     0.1,
                "Update Available",       "Download update", Action::openDownload,
                std::move(version)};
    case Case::checking:
        return {{},           Color::teal,       0.12, "Checking for updates", "Checking…",
                Action::none, std::move(version)};
    case Case::failed:
        return {"exclamationmark.circle.fill",
                Color::red,
                0.1,
                "Update check failed",
                "Try again",
                Action::check,
                std::move(version)};
    case Case::idle: // as good as up to date until a check says otherwise
    case Case::upToDate:
        break;
    }
    return {"checkmark.circle.fill", Color::green,      0.12, "Up to date", "Check update",
            Action::check,           std::move(version)};
}

} // namespace brellowind
