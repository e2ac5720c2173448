// SPDX-License-Identifier: MIT

#include "soak/Consumption.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <system_error>
#include <xcb/res.h>

namespace brellowind::test {
namespace {

namespace fs = std::filesystem;

constexpr double megabyte = 1024.0 * 1024.0;

double entries(const fs::path& folder) {
    std::error_code error;
    double count = 0;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        ++count;
    return count;
}

/// The value in kilobytes of the line `name` in smaps_rollup.
double megabytes(const std::string& summary, const std::string& wanted) {
    std::istringstream words(summary);
    for (std::string word; words >> word;)
        if (double kilobytes = 0; word == wanted && words >> kilobytes)
            return kilobytes / 1024;
    ADD_FAILURE() << "the system does not tell " << wanted << " of the program";
    return 0;
}

} // namespace

Consumption consumption(pid_t pid, const XClient& x, xcb_window_t window) {
    const fs::path process = fs::path("/proc") / std::to_string(pid);
    std::ifstream rollup(process / "smaps_rollup");
    std::ostringstream memory;
    memory << rollup.rdbuf();
    const std::string summary = memory.str();
    EXPECT_FALSE(summary.empty()) << "there is no process " << pid;

    double resources = 0;
    const auto types =
        x.ask<xcb_res_query_client_resources, xcb_res_query_client_resources_reply>(window);
    EXPECT_TRUE(types) << "the X server does not tell what the program holds";
    if (types) {
        auto type = xcb_res_query_client_resources_types_iterator(types.get());
        for (; type.rem > 0; xcb_res_type_next(&type))
            resources += type.data->count;
    }
    const auto pixmaps =
        x.ask<xcb_res_query_client_pixmap_bytes, xcb_res_query_client_pixmap_bytes_reply>(window);
    return {
        .pssMB = megabytes(summary, "Pss:"),
        .rssMB = megabytes(summary, "Rss:"),
        .privateMB = megabytes(summary, "Private_Dirty:"),
        .files = entries(process / "fd"),
        .threads = entries(process / "task"),
        .xResources = resources,
        .pixmapsMB = pixmaps ? pixmaps->bytes / megabyte : 0,
    };
}

} // namespace brellowind::test
