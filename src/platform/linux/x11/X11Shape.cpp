// SPDX-License-Identifier: MIT

#include "platform/linux/x11/X11Shape.h"

#include <vector>
#include <xcb/shape.h>

namespace brellowind::platform {
namespace {

void shape(const X11Connection& x11, xcb_window_t window, xcb_shape_kind_t kind,
           const QRegion& region) {
    std::vector<xcb_rectangle_t> rectangles;
    for (const QRect& rect : region)
        rectangles.push_back({std::int16_t(rect.x()), std::int16_t(rect.y()),
                              std::uint16_t(rect.width()), std::uint16_t(rect.height())});
    xcb_shape_rectangles(x11.get(), XCB_SHAPE_SO_SET, kind, XCB_CLIP_ORDERING_YX_BANDED, window, 0,
                         0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

} // namespace

X11Shape::X11Shape(const X11Connection& x11, xcb_window_t window) : x11_(x11), window_(window) {}

void X11Shape::setInput(const QRegion& region) {
    if (input_ == region)
        return;
    input_ = region;
    shape(x11_, window_, XCB_SHAPE_SK_INPUT, region);
    x11_.flush();
}

void X11Shape::setBounding(const std::optional<QRegion>& region) {
    if (bounding_ == region)
        return;
    if (bounding_.has_value() != region.has_value())
        setBackground(region.has_value());
    bounding_ = region;
    if (region)
        shape(x11_, window_, XCB_SHAPE_SK_BOUNDING, *region);
    else
        xcb_shape_mask(x11_.get(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window_, 0, 0,
                       XCB_PIXMAP_NONE);
    x11_.flush();
}

void X11Shape::setBackground(bool black) {
    constexpr std::uint32_t opaqueBlack = 0xff000000;
    constexpr std::uint32_t none = XCB_BACK_PIXMAP_NONE;
    if (black)
        xcb_change_window_attributes(x11_.get(), window_, XCB_CW_BACK_PIXEL, &opaqueBlack);
    else
        xcb_change_window_attributes(x11_.get(), window_, XCB_CW_BACK_PIXMAP, &none);
}

} // namespace brellowind::platform
