#pragma once

#include "companion/Companion.h"
#include "session/OtherProgram.h"

#include <QTemporaryDir>

namespace brellowind::test {

/// A window manager that runs while this lives. Fails the running test when it does not start.
class WindowManager {
public:
    WindowManager();

private:
    QTemporaryDir home_;
    demo::Companion process_;
};

/// A compositing manager that runs while this lives. Fails the running test when it does not start.
class CompositingManagerProcess {
public:
    explicit CompositingManagerProcess(OtherProgram& witness);
    CompositingManagerProcess(const CompositingManagerProcess&) = delete;
    CompositingManagerProcess& operator=(const CompositingManagerProcess&) = delete;

    /// Returns when it is gone.
    ~CompositingManagerProcess();

private:
    OtherProgram& witness_;
    demo::Companion process_;
};

} // namespace brellowind::test
