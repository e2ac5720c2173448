// SPDX-License-Identifier: MIT

#pragma once

namespace brellowind::platform {

/// Discards Qt's messages, unless the variable QT_LOGGING_RULES is set.
void silenceQt();

/// Ends the program with one line on standard error and status 1 when the display server closes
/// `socket`, the connection to it. Qt may notice that anywhere, with a warning or a null
/// dereference. REQUIRES: `silenceQt` was called.
void endWithDisplay(int socket);

/// Call before the program itself closes the connection.
void ignoreDisplay();

} // namespace brellowind::platform
