#pragma once

#include <string>
#include <systemd/sd-bus.h>

namespace brellowind::platform {

/// The answer to the read-out script, made from the properties of `org.mpris.MediaPlayer2.Player`:
/// a message that holds one `a{sv}` and has not been read yet.
///
/// Lenient with what real players send: a property that is absent or of a type that cannot be read
/// becomes an empty field; `mpris:length` and `Position` may be any integer type or a double, in
/// microseconds; `xesam:artist` may be a list, whose first entry counts, or a text. A text loses
/// what separates the fields, so there are always seven.
std::string mprisRecord(sd_bus_message* properties);

} // namespace brellowind::platform
