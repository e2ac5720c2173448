// SPDX-License-Identifier: MIT

// Started by a compositor: writes the environment variables of its displays, one per line, to the
// file in its argument. Runs until the compositor exits, since some compositors exit with their
// child.
#include "desktops/WaylandConnection.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

int main(int argc, char** argv) try {
    if (argc != 2)
        return 2;
    const brellowind::test::WaylandConnection connection(nullptr);
    const std::string file(argv[1]);
    std::ofstream part(file + ".part");
    for (const char* name : {"WAYLAND_DISPLAY", "DISPLAY", "XAUTHORITY"})
        if (const char* value = std::getenv(name); value && *value)
            part << name << '=' << value << '\n';
    part.close();
    if (!part || std::rename((file + ".part").c_str(), file.c_str()) != 0)
        return 1;
    connection.runToTheEnd();
    return 0;
} catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
