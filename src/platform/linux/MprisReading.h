// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Player.h"

#include <QDBusMessage>
#include <cstddef>

namespace brellowind::platform {

/// Longer titles, artists and albums are truncated, in bytes. Real ones are well under 1000 bytes;
/// layout and painting of a megabyte of complex scripts would block the program for seconds.
inline constexpr std::size_t longestMprisText = 4096;

/// Further entries of a map are ignored. Real players send a few dozen.
inline constexpr int mostMprisEntries = 256;

/// Parses the reply to `GetAll` of `org.mpris.MediaPlayer2.Player`: `Unreadable` unless it is one
/// `a{sv}`, `NotRunning` if no track is loaded.
///
/// Lenient, as real players deviate: a property that is missing or of an unexpected type is an
/// empty text or 0. `mpris:length` and `Position` may be of any integer type or a double, in
/// microseconds. `xesam:artist` may be a list, whose first entry counts, or a text. A cover URL
/// longer than the limit for texts is dropped, not truncated.
Player::Answer readMpris(const QDBusMessage& reply);

} // namespace brellowind::platform
