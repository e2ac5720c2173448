#pragma once

#include <cstddef>
#include <string>
#include <systemd/sd-bus.h>

namespace brellowind::platform {

/// No title, artist or album that a person reads is longer, in bytes; the longest that are sold
/// take well under a thousand. A longer text is cut: laid out and painted whole, a megabyte of what
/// writing systems know can hold the program up for seconds.
inline constexpr std::size_t longestMprisText = 4096;

/// The answer to the read-out script, made from the properties of `org.mpris.MediaPlayer2.Player`:
/// a message that holds one `a{sv}` and has not been read yet.
///
/// Lenient with what real players send: a property that is absent or of a type that cannot be read
/// becomes an empty field; `mpris:length` and `Position` may be any integer type or a double, in
/// microseconds; `xesam:artist` may be a list, whose first entry counts, or a text. A text loses
/// what separates the fields, so there are always seven, and what is beyond the longest text. A
/// cover location that is too long is an empty field: its beginning would lead elsewhere.
std::string mprisRecord(sd_bus_message* properties);

} // namespace brellowind::platform
