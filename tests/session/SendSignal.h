// SPDX-License-Identifier: MIT

#pragma once

#include "companion/Companion.h"

namespace brellowind::test {

/// Sends `signal` to a child process of the test. If that process has ended, fails the test and
/// sends nothing: its id may be reused, or 0, which is the whole process group.
void sendSignal(int signal, const demo::Companion& process);

} // namespace brellowind::test
