// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>
#include <string_view>
#include <vector>
#include <xcb/damage.h>
#include <xcb/xcb.h>

namespace {

using Pixels = std::vector<std::uint8_t>;

struct Area {
    std::int16_t x;
    std::int16_t y;
    std::uint16_t width;
    std::uint16_t height;

    bool meets(const xcb_rectangle_t& other) const {
        return other.x < x + width && x < other.x + other.width && other.y < y + height &&
               y < other.y + other.height;
    }
};

template <typename T>
std::unique_ptr<T, decltype(&std::free)> owned(T* reply) {
    return {reply, &std::free};
}

long long now() {
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
}

Pixels look(xcb_connection_t* x11, xcb_window_t root, const Area& area) {
    const auto image =
        owned(xcb_get_image_reply(x11,
                                  xcb_get_image(x11, XCB_IMAGE_FORMAT_Z_PIXMAP, root, area.x,
                                                area.y, area.width, area.height, ~std::uint32_t(0)),
                                  nullptr));
    if (!image)
        return {};
    const auto* data = xcb_get_image_data(image.get());
    return {data, data + xcb_get_image_data_length(image.get())};
}

/// Writes the whole screen as a PPM image.
int save(xcb_connection_t* x11, const xcb_screen_t& screen, const char* path) {
    const auto pixels =
        look(x11, screen.root, {0, 0, screen.width_in_pixels, screen.height_in_pixels});
    std::FILE* file = std::fopen(path, "wb");
    if (pixels.empty() || !file)
        return 1;
    std::fprintf(file, "P6 %d %d 255\n", screen.width_in_pixels, screen.height_in_pixels);
    for (std::size_t i = 0; i + 3 < pixels.size(); i += 4)
        for (const std::size_t colour : {2, 1, 0})
            std::fputc(pixels[i + colour], file);
    return std::fclose(file);
}

/// Prints the time of every change within `area`, in nanoseconds of the monotonic clock.
int watch(xcb_connection_t* x11, const xcb_screen_t& screen, const Area& area) {
    const auto* extension = xcb_get_extension_data(x11, &xcb_damage_id);
    if (!extension || !extension->present)
        return 1;
    owned(xcb_damage_query_version_reply(x11, xcb_damage_query_version(x11, 1, 1), nullptr));
    xcb_damage_create(x11, xcb_generate_id(x11), screen.root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    auto seen = look(x11, screen.root, area);
    std::puts("watching");
    std::fflush(stdout);
    while (const auto event = owned(xcb_wait_for_event(x11))) {
        const auto moment = now();
        if ((event->response_type & 0x7f) != extension->first_event + XCB_DAMAGE_NOTIFY)
            continue;
        if (!area.meets(reinterpret_cast<xcb_damage_notify_event_t*>(event.get())->area))
            continue;
        auto seeing = look(x11, screen.root, area);
        if (seeing == seen)
            continue;
        seen = std::move(seeing);
        std::printf("%lld\n", moment);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    auto* x11 = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(x11))
        return 1;
    const auto& screen = *xcb_setup_roots_iterator(xcb_get_setup(x11)).data;
    const auto number = [argv](int i) { return std::atoi(argv[i]); };
    if (argc == 3 && std::string_view(argv[1]) == "save")
        return save(x11, screen, argv[2]);
    if (argc == 6 && std::string_view(argv[1]) == "watch")
        return watch(x11, screen,
                     {static_cast<std::int16_t>(number(2)), static_cast<std::int16_t>(number(3)),
                      static_cast<std::uint16_t>(number(4)),
                      static_cast<std::uint16_t>(number(5))});
    std::fprintf(stderr, "usage: eye save FILE | eye watch X Y WIDTH HEIGHT\n");
    return 2;
}
