#pragma once

#include "platform/Screens.h"

#include <memory>
#include <utility>

namespace brellowind::test {

/// The screens that the test says are connected.
class FakeScreens final : public platform::Screens {
public:
    std::vector<platform::Screen> screens() override { return connected; }
    std::optional<platform::Screen> main() override { return mainScreen; }

    Subscription onChange(Observers::Callback callback) override {
        return observers_->add(std::move(callback));
    }

    /// Tells those who asked that the arrangement has changed.
    void announceChange() { observers_->notify(); }

    std::vector<platform::Screen> connected;
    std::optional<platform::Screen> mainScreen;

private:
    std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
};

} // namespace brellowind::test
