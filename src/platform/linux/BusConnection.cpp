#include "platform/linux/BusConnection.h"

namespace brellowind::platform {
namespace {

/// Of the bus library's errors this one holds texts of its own.
struct Error : sd_bus_error {
    Error() : sd_bus_error(SD_BUS_ERROR_NULL) {}
    ~Error() { sd_bus_error_free(this); }
    Error(const Error&) = delete;
    Error& operator=(const Error&) = delete;
};

std::string orEmpty(const char* text) {
    return text ? text : "";
}

} // namespace

bool BusError::isTimeout() const {
    return name == SD_BUS_ERROR_NO_REPLY || name == SD_BUS_ERROR_TIMEOUT ||
           name == "org.freedesktop.DBus.Error.TimedOut";
}

BusConnection::BusConnection() {
    sd_bus* bus = nullptr;
    if (sd_bus_open_user(&bus) >= 0)
        bus_.reset(bus);
}

BusConnection::BusConnection(const std::string& address) {
    sd_bus* made = nullptr;
    if (sd_bus_new(&made) < 0)
        return;
    std::unique_ptr<sd_bus, BusRelease> bus(made);
    if (sd_bus_set_address(made, address.c_str()) >= 0 && sd_bus_set_bus_client(made, 1) >= 0 &&
        sd_bus_start(made) >= 0)
        bus_ = std::move(bus);
}

BusMessage BusConnection::methodCall(const std::string& service, const char* path,
                                     const char* interface, const char* method) const {
    sd_bus_message* message = nullptr;
    if (!bus_ || sd_bus_message_new_method_call(bus_.get(), &message, service.c_str(), path,
                                                interface, method) < 0)
        return nullptr;
    sd_bus_message_set_auto_start(message, 0);
    return BusMessage(message);
}

BusAnswer BusConnection::call(const BusMessage& request, std::chrono::milliseconds patience) {
    Error error;
    sd_bus_message* reply = nullptr;
    const auto microseconds = std::chrono::microseconds(patience).count();
    if (bus_ && request &&
        sd_bus_call(bus_.get(), request.get(), static_cast<std::uint64_t>(microseconds), &error,
                    &reply) >= 0)
        return BusMessage(reply);
    if (!bus_ || sd_bus_is_open(bus_.get()) <= 0)
        return BusError{SD_BUS_ERROR_DISCONNECTED, "there is no bus"};
    return BusError{orEmpty(error.name), orEmpty(error.message)};
}

BusCall BusConnection::callLater(const BusMessage& request, sd_bus_message_handler_t answered,
                                 void* userData) {
    sd_bus_slot* slot = nullptr;
    if (bus_ && request)
        sd_bus_call_async(bus_.get(), &slot, request.get(), answered, userData, 0);
    return BusCall(slot);
}

void BusConnection::process() {
    while (bus_ && sd_bus_process(bus_.get(), nullptr) > 0) {
    }
}

} // namespace brellowind::platform
