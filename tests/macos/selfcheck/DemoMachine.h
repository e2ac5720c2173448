// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Machine.h"

namespace brellowind::selfcheck {

/// A real machine with another player.
class DemoMachine final : public platform::Machine {
public:
    /// Both must outlive it.
    DemoMachine(platform::Machine& machine, platform::Player& player)
        : machine_(machine), player_(player) {}

    platform::MainLoop& mainLoop() override { return machine_.mainLoop(); }
    platform::Log& log() override { return machine_.log(); }
    platform::HttpClient& http() override { return machine_.http(); }
    platform::ImageDecoder& images() override { return machine_.images(); }
    platform::LocalFiles& files() override { return machine_.files(); }
    platform::Player& player() override { return player_; }
    platform::WindowSystem& windowSystem() override { return machine_.windowSystem(); }
    platform::LinkOpener& links() override { return machine_.links(); }
    platform::LoginItem& loginItem() override { return machine_.loginItem(); }

    bool claimSession(std::function<void()> onSecondStart) override {
        return machine_.claimSession(std::move(onSecondStart));
    }

    int run() override { return machine_.run(); }

private:
    platform::Machine& machine_;
    platform::Player& player_;
};

} // namespace brellowind::selfcheck
