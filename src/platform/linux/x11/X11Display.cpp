// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Display.h"

#include <cstdlib>
#include <string_view>

namespace brellowind::platform {
namespace {

/// The path of a display's socket, which may be used instead of its number.
constexpr std::string_view localSocket = "/tmp/.X11-unix/X";

} // namespace

std::string x11DisplayName(const char* spelling) {
    char* parsedHost = nullptr;
    int number = 0;
    if (!xcb_parse_display(spelling, &parsedHost, &number, nullptr))
        return {};
    const std::string host = parsedHost;
    std::free(parsedHost);
    if (host.starts_with(localSocket))
        return ':' + host.substr(localSocket.size());
    return (host == "unix" ? std::string() : host) + ':' + std::to_string(number);
}

std::unique_ptr<xcb_connection_t, X11Disconnect> openX11Display() {
    std::unique_ptr<xcb_connection_t, X11Disconnect> connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        connection.reset();
    return connection;
}

} // namespace brellowind::platform
