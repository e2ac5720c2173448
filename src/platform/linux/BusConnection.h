#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <systemd/sd-bus.h>
#include <variant>

namespace brellowind::platform {

struct BusRelease {
    void operator()(sd_bus* bus) const { sd_bus_close_unref(bus); }
    void operator()(sd_bus_message* message) const { sd_bus_message_unref(message); }
    void operator()(sd_bus_slot* slot) const { sd_bus_slot_unref(slot); }
};

using BusMessage = std::unique_ptr<sd_bus_message, BusRelease>;

/// A call that is still to be answered; dropping it lets the answer go unheard.
using BusCall = std::unique_ptr<sd_bus_slot, BusRelease>;

struct BusError {
    std::string name; ///< as the bus names errors
    std::string text;

    /// Whether nobody answered in time.
    bool isTimeout() const;
};

using BusAnswer = std::variant<BusMessage, BusError>;

/// A connection to a message bus for questions that are asked and waited for. It has neither a
/// thread nor a place in the main loop, so an answer wakes the program once and nothing else does.
/// Without a bus every call is answered by an error. Main thread only.
class BusConnection {
public:
    /// To the bus of the session that this process runs in.
    BusConnection();

    /// To the bus at `address`.
    explicit BusConnection(const std::string& address);

    /// A call that starts no program to answer it.
    BusMessage methodCall(const std::string& service, const char* path, const char* interface,
                          const char* method) const;

    /// Sends `request`, which may be null, and waits for the answer.
    BusAnswer call(const BusMessage& request, std::chrono::milliseconds patience);

    /// Sends `request`, and has `answered` hear the answer from within a later `process`.
    BusCall callLater(const BusMessage& request, sd_bus_message_handler_t answered, void* userData);

    /// Takes what has come in the meantime, without waiting.
    void process();

private:
    std::unique_ptr<sd_bus, BusRelease> bus_; ///< null where there is no bus
};

} // namespace brellowind::platform
