#include "session/OtherProgram.h"

#include "session/EventLoop.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <xcb/xtest.h>

namespace brellowind::test {
namespace {

template <typename Answer>
std::unique_ptr<Answer, decltype(&std::free)> owned(Answer* answer) {
    return {answer, &std::free};
}

} // namespace

OtherProgram::OtherProgram() : connection_(xcb_connect(nullptr, nullptr)) {
    EXPECT_EQ(xcb_connection_has_error(connection_), 0);
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    root_ = screen_->root;
    shapeNotify_ = static_cast<std::uint8_t>(
        xcb_get_extension_data(connection_, &xcb_shape_id)->first_event + XCB_SHAPE_NOTIFY);
}

OtherProgram::~OtherProgram() {
    xcb_disconnect(connection_);
}

xcb_window_t OtherProgram::open(const QRect& frame, Kind kind, std::uint32_t colour) {
    const auto window = xcb_generate_id(connection_);
    const std::uint32_t values[] = {colour, kind == Kind::bypassing,
                                    XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE};
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, root_,
                      static_cast<std::int16_t>(frame.x()), static_cast<std::int16_t>(frame.y()),
                      static_cast<std::uint16_t>(frame.width()),
                      static_cast<std::uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      screen_->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(connection_, window);
    sync();
    EXPECT_TRUE(waitUntil([&] { return isViewable(window); }));
    return window;
}

void OtherProgram::close(xcb_window_t window) {
    xcb_destroy_window(connection_, window);
    sync();
}

void OtherProgram::raise(xcb_window_t window) {
    const std::uint32_t above = XCB_STACK_MODE_ABOVE;
    xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
    sync();
}

void OtherProgram::move(xcb_window_t window, QPoint to) {
    const std::int32_t position[] = {to.x(), to.y()};
    xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y, position);
    sync();
}

void OtherProgram::makeFullScreen(xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("_NET_WM_STATE");
    message.data.data32[0] = 1; // add
    message.data.data32[1] = atom("_NET_WM_STATE_FULLSCREEN");
    message.data.data32[3] = 1; // an ordinary application asks
    xcb_send_event(connection_, 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    sync();
}

void OtherProgram::movePointer(QPoint to) {
    xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root_,
                        static_cast<std::int16_t>(to.x()), static_cast<std::int16_t>(to.y()), 0);
    sync();
}

void OtherProgram::click(QPoint at) {
    movePointer(at);
    for (const std::uint8_t type :
         std::initializer_list<std::uint8_t>{XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        xcb_test_fake_input(connection_, type, 1, XCB_CURRENT_TIME, root_, 0, 0, 0);
    sync();
}

void OtherProgram::grabPointer(xcb_window_t window) {
    const auto grab = owned(xcb_grab_pointer_reply(
        connection_,
        xcb_grab_pointer(connection_, 0, window, XCB_EVENT_MASK_POINTER_MOTION, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME),
        nullptr));
    EXPECT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
}

int OtherProgram::clicks(xcb_window_t window) {
    sync();
    drainEvents();
    return clicks_[window];
}

int OtherProgram::structureEvents(xcb_window_t window) {
    if (!structureEvents_.contains(window)) {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &mask);
    }
    sync();
    drainEvents();
    return structureEvents_[window];
}

int OtherProgram::shapeEvents(xcb_window_t window) {
    if (!shapeEvents_.contains(window))
        xcb_shape_select_input(connection_, window, 1);
    sync();
    drainEvents();
    return shapeEvents_[window];
}

xcb_window_t OtherProgram::focus() {
    const auto focus =
        owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
    return focus->focus;
}

void OtherProgram::setScreenSaverActive(bool active) {
    xcb_force_screen_saver(connection_, active ? XCB_SCREEN_SAVER_ACTIVE : XCB_SCREEN_SAVER_RESET);
    sync();
}

std::optional<QRect> OtherProgram::frame(xcb_window_t window) {
    const auto geometry =
        owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
    const auto position = owned(xcb_translate_coordinates_reply(
        connection_, xcb_translate_coordinates(connection_, window, root_, 0, 0), nullptr));
    if (!geometry || !position)
        return std::nullopt;
    return QRect(position->dst_x, position->dst_y, geometry->width, geometry->height);
}

bool OtherProgram::isViewable(xcb_window_t window) {
    const auto attributes = owned(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

bool OtherProgram::bypassesWindowManager(xcb_window_t window) {
    const auto attributes = owned(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    return attributes && attributes->override_redirect;
}

QRegion OtherProgram::shape(xcb_window_t window, xcb_shape_kind_t kind) {
    const auto rectangles = owned(xcb_shape_get_rectangles_reply(
        connection_, xcb_shape_get_rectangles(connection_, window, kind), nullptr));
    QRegion region;
    if (!rectangles)
        return region;
    const auto* first = xcb_shape_get_rectangles_rectangles(rectangles.get());
    const auto* end = first + xcb_shape_get_rectangles_rectangles_length(rectangles.get());
    for (const auto* rectangle = first; rectangle != end; ++rectangle)
        region += QRect(rectangle->x, rectangle->y, rectangle->width, rectangle->height);
    return region;
}

std::vector<xcb_window_t> OtherProgram::stack() {
    const auto tree =
        owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root_), nullptr));
    const auto* first = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> shown(first, first + xcb_query_tree_children_length(tree.get()));
    std::erase_if(shown, [this](xcb_window_t window) { return !isViewable(window); });
    return shown;
}

xcb_window_t OtherProgram::topLevel(xcb_window_t window) {
    while (true) {
        const auto tree =
            owned(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, window), nullptr));
        if (!tree || tree->parent == root_)
            return window;
        window = tree->parent;
    }
}

bool OtherProgram::isAbove(xcb_window_t upper, xcb_window_t lower) {
    const auto windows = stack();
    const auto at = [&](xcb_window_t window) {
        return std::ranges::find(windows, topLevel(window));
    };
    return at(upper) != windows.end() && at(lower) != windows.end() && at(lower) < at(upper);
}

std::uint32_t OtherProgram::pixel(QPoint at) {
    const auto image = owned(xcb_get_image_reply(
        connection_,
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, root_,
                      static_cast<std::int16_t>(at.x()), static_cast<std::int16_t>(at.y()), 1, 1,
                      ~std::uint32_t(0)),
        nullptr));
    std::uint32_t colour = 0;
    if (image)
        std::memcpy(&colour, xcb_get_image_data(image.get()), sizeof colour);
    return colour & 0xffffff;
}

xcb_window_t OtherProgram::selectionOwner(const char* selection) {
    const auto owner = owned(xcb_get_selection_owner_reply(
        connection_, xcb_get_selection_owner(connection_, atom(selection)), nullptr));
    return owner ? owner->owner : xcb_window_t(XCB_WINDOW_NONE);
}

xcb_atom_t OtherProgram::atom(const char* name) {
    const auto length = static_cast<std::uint16_t>(std::strlen(name));
    return owned(xcb_intern_atom_reply(connection_, xcb_intern_atom(connection_, 0, length, name),
                                       nullptr))
        ->atom;
}

void OtherProgram::sync() {
    owned(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

void OtherProgram::drainEvents() {
    while (const auto event = owned(xcb_poll_for_event(connection_))) {
        const int type = event->response_type & 0x7f;
        if (type == XCB_BUTTON_PRESS)
            ++clicks_[reinterpret_cast<const xcb_button_press_event_t&>(*event).event];
        else if (type == shapeNotify_)
            ++shapeEvents_[reinterpret_cast<const xcb_shape_notify_event_t&>(*event)
                               .affected_window];
        else if (type == XCB_MAP_NOTIFY || type == XCB_UNMAP_NOTIFY || type == XCB_CONFIGURE_NOTIFY)
            ++structureEvents_[reinterpret_cast<const xcb_map_notify_event_t&>(*event).event];
    }
}

} // namespace brellowind::test
