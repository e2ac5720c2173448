// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Screens.h"

#include <memory>
#include <utility>

namespace brellowind::test {

/// Screens that are connected by the test.
class FakeScreens final : public platform::Screens {
public:
    std::vector<platform::Screen> screens() override { return connected; }
    std::optional<platform::Screen> main() override { return mainScreen; }

    Subscription onChange(Observers::Callback callback) override {
        return observers_->add(std::move(callback));
    }

    /// Notifies the observers of a change of the arrangement.
    void announceChange() { observers_->notify(); }

    std::vector<platform::Screen> connected;
    std::optional<platform::Screen> mainScreen;

private:
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::test
