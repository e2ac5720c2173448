#pragma once

namespace brellowind::platform {

/// Keeps what Qt says off standard error, unless the variable QT_LOGGING_RULES asks for it.
void silenceQt();

/// From now on the program ends with one line on standard error and status 1 when the display
/// closes `socket`, the connection to it. Qt takes note of that anywhere, by a warning or by
/// reading an answer that is not there. REQUIRES: `silenceQt` was called.
void endWithDisplay(int socket);

/// To be called before the program closes the connection itself.
void ignoreDisplay();

} // namespace brellowind::platform
