#pragma once

#include "companion/Companion.h"

namespace brellowind::test {

/// Sends `signal` to a process that a test has started. Fails the running test, and sends nothing,
/// when that process has ended: its number is nobody's any more, or zero, which stands for the test
/// and all its companions.
void sendSignal(int signal, const demo::Companion& process);

} // namespace brellowind::test
