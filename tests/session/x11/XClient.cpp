// SPDX-License-Identifier: MIT

#include "session/x11/XClient.h"

#include <cstring>
#include <gtest/gtest.h>
#include <span>
#include <utility>

namespace brellowind::test {

XClient::XClient(QString display)
    : display_(std::move(display)),
      connection_(xcb_connect(display_.toLatin1().constData(), nullptr)) {
    EXPECT_EQ(xcb_connection_has_error(connection_), 0) << qPrintable(display_);
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

XClient::~XClient() {
    xcb_disconnect(connection_);
}

void XClient::finish() const {
    ask<xcb_get_input_focus, xcb_get_input_focus_reply>();
}

xcb_atom_t XClient::atom(const char* name) const {
    const auto answer = ask<xcb_intern_atom, xcb_intern_atom_reply>(
        std::uint8_t(0), static_cast<std::uint16_t>(std::strlen(name)), name);
    return answer ? answer->atom : xcb_atom_t(XCB_ATOM_NONE);
}

QList<quint32> XClient::property(xcb_window_t window, const char* name) const {
    const auto answer = ask<xcb_get_property, xcb_get_property_reply>(
        std::uint8_t(0), window, atom(name), xcb_atom_t(XCB_GET_PROPERTY_TYPE_ANY),
        std::uint32_t(0), std::uint32_t(1024));
    if (!answer || answer->format != 32)
        return {};
    const std::span numbers(static_cast<const quint32*>(xcb_get_property_value(answer.get())),
                            answer->value_len);
    return {numbers.begin(), numbers.end()};
}

bool XClient::isOwned(const char* selection) const {
    const auto answer =
        ask<xcb_get_selection_owner, xcb_get_selection_owner_reply>(atom(selection));
    return answer && answer->owner != XCB_WINDOW_NONE;
}

QList<xcb_window_t> XClient::stack() const {
    const auto tree = ask<xcb_query_tree, xcb_query_tree_reply>(root());
    if (!tree)
        return {};
    const auto* first = xcb_query_tree_children(tree.get());
    QList<xcb_window_t> shown(first, first + xcb_query_tree_children_length(tree.get()));
    shown.removeIf([this](xcb_window_t window) { return !isViewable(window); });
    return shown;
}

bool XClient::isAbove(xcb_window_t upper, xcb_window_t lower) const {
    const auto windows = stack();
    const auto below = windows.indexOf(frameOf(lower));
    return below >= 0 && windows.indexOf(frameOf(upper)) > below;
}

xcb_window_t XClient::frameOf(xcb_window_t window) const {
    while (const auto tree = ask<xcb_query_tree, xcb_query_tree_reply>(window)) {
        if (tree->parent == root() || tree->parent == XCB_WINDOW_NONE)
            break;
        window = tree->parent;
    }
    return window;
}

QRect XClient::geometry(xcb_window_t window) const {
    const auto size = ask<xcb_get_geometry, xcb_get_geometry_reply>(window);
    const auto place = ask<xcb_translate_coordinates, xcb_translate_coordinates_reply>(
        window, root(), std::int16_t(0), std::int16_t(0));
    if (!size || !place)
        return {};
    return {place->dst_x, place->dst_y, size->width, size->height};
}

bool XClient::isViewable(xcb_window_t window) const {
    const auto attributes = ask<xcb_get_window_attributes, xcb_get_window_attributes_reply>(window);
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool XClient::overridesRedirect(xcb_window_t window) const {
    const auto attributes = ask<xcb_get_window_attributes, xcb_get_window_attributes_reply>(window);
    return attributes && attributes->override_redirect != 0;
}

QRegion XClient::shape(xcb_window_t window, xcb_shape_kind_t kind) const {
    const auto rectangles =
        ask<xcb_shape_get_rectangles, xcb_shape_get_rectangles_reply>(window, kind);
    if (!rectangles)
        return {};
    const auto* first = xcb_shape_get_rectangles_rectangles(rectangles.get());
    const auto count = xcb_shape_get_rectangles_rectangles_length(rectangles.get());
    QRegion region;
    for (const auto& part : std::span(first, static_cast<std::size_t>(count)))
        region += QRect(part.x, part.y, part.width, part.height);
    return region;
}

xcb_window_t XClient::focus() const {
    const auto answer = ask<xcb_get_input_focus, xcb_get_input_focus_reply>();
    return answer ? answer->focus : xcb_window_t(XCB_WINDOW_NONE);
}

QColor XClient::pixel(QPoint place) const {
    const auto image = ask<xcb_get_image, xcb_get_image_reply>(
        std::uint8_t(XCB_IMAGE_FORMAT_Z_PIXMAP), root(), static_cast<std::int16_t>(place.x()),
        static_cast<std::int16_t>(place.y()), std::uint16_t(1), std::uint16_t(1), ~0U);
    if (!image)
        return {};
    quint32 colour = 0;
    std::memcpy(&colour, xcb_get_image_data(image.get()), sizeof colour);
    return QColor::fromRgb(colour);
}

void XClient::setScreenSaverActive(bool active) const {
    xcb_force_screen_saver(connection_, active ? XCB_SCREEN_SAVER_ACTIVE : XCB_SCREEN_SAVER_RESET);
    finish();
}

} // namespace brellowind::test
