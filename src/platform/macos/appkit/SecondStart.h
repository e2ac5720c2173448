// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

namespace brellowind::platform {

/// The other starts of this program. The system starts a bundle once: who opens it again makes it
/// tell the running program.
class SecondStart {
public:
    /// `onSecondStart` runs on each. REQUIRES: an application object.
    explicit SecondStart(std::function<void()> onSecondStart);
    SecondStart(const SecondStart&) = delete;
    SecondStart& operator=(const SecondStart&) = delete;
    ~SecondStart();

    /// Opens the bundle of this process in another process that runs it. False when there is none.
    static bool tellOther();

private:
    struct Observation;

    std::unique_ptr<Observation> observation_;
};

} // namespace brellowind::platform
