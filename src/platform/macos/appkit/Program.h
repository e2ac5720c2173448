// SPDX-License-Identifier: MIT

#pragma once

/// This program as AppKit knows it.
namespace brellowind::platform::Program {

/// Whether this process can show windows. Call before there is an application object.
bool hasWindowServer();

/// Takes the program out of the Dock and gives it no menu bar. REQUIRES: an application object.
void becomeAccessory();

/// Makes the program the active one.
void activate();

} // namespace brellowind::platform::Program
