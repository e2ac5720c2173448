#pragma once

#include "platform/Player.h"

#include <QDBusMessage>
#include <cstddef>

namespace brellowind::platform {

/// No title, artist or album that a person reads is longer, in bytes; the longest that are sold
/// take well under a thousand. A longer text is cut: laid out and painted whole, a megabyte of what
/// writing systems know can hold the program up for seconds.
inline constexpr std::size_t longestMprisText = 4096;

/// Of each map no more entries are read; a real player sends some dozens.
inline constexpr int mostMprisEntries = 256;

/// Reads the answer to `GetAll` of `org.mpris.MediaPlayer2.Player`: `Unreadable` unless it is one
/// `a{sv}`, `NotRunning` if no track is loaded.
///
/// Lenient with what real players send: a property that is absent or of a type that cannot be read
/// is an empty text or 0. `mpris:length` and `Position` may be any integer type or a double, in
/// microseconds. `xesam:artist` may be a list, whose first entry counts, or a text. A cover
/// location that is longer than the longest text is absent: its beginning would lead elsewhere.
Player::Answer readMpris(const QDBusMessage& reply);

} // namespace brellowind::platform
