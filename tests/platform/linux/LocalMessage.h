#pragma once

#include "platform/linux/BusConnection.h"

#include <cstdlib>
#include <sys/socket.h>

namespace brellowind::test {

/// A bus message that never travels: it is filled, sealed, and read from its beginning on.
class LocalMessage {
public:
    LocalMessage() {
        sd_bus_message* message = nullptr;
        if (sd_bus_message_new_signal(bus(), &message, "/local", "local.Message", "Local") < 0)
            std::abort();
        message_.reset(message);
    }

    sd_bus_message* get() const { return message_.get(); }

    /// Ends the filling.
    sd_bus_message* sealed() {
        if (sd_bus_message_seal(message_.get(), 1, 0) < 0 ||
            sd_bus_message_rewind(message_.get(), 1) < 0)
            std::abort();
        return message_.get();
    }

private:
    /// Messages are only made for a connection; this one leads nowhere.
    static sd_bus* bus() {
        static const auto connection = [] {
            int ends[2];
            sd_bus* made = nullptr;
            if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends) < 0 ||
                sd_bus_new(&made) < 0 || sd_bus_set_fd(made, ends[0], ends[0]) < 0 ||
                sd_bus_start(made) < 0)
                std::abort();
            return std::unique_ptr<sd_bus, platform::BusRelease>(made);
        }();
        return connection.get();
    }

    platform::BusMessage message_;
};

} // namespace brellowind::test
