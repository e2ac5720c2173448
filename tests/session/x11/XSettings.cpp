// SPDX-License-Identifier: MIT

#include "session/x11/XSettings.h"

#include <QByteArray>
#include <QtEndian>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr auto selection = "_XSETTINGS_S0";

QByteArray number(quint32 value) {
    value = qToLittleEndian(value);
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

/// The serialised settings: the density only, in 1/1024 dpi.
QByteArray settings(quint32 serial, int dotsPerInch) {
    const QByteArray name = "Xft/DPI"; // padded with a byte to a multiple of four
    const QByteArray littleEndian(4, '\0');
    const QByteArray integer(2, '\0');
    return littleEndian + number(serial) + number(1) + integer + char(name.size()) + '\0' + name +
           '\0' + number(serial) + number(static_cast<quint32>(dotsPerInch) * 1024);
}

} // namespace

XSettings::XSettings(const QString& display, int dotsPerInch)
    : client_(display), window_(xcb_generate_id(client_.get())) {
    xcb_create_window(client_.get(), XCB_COPY_FROM_PARENT, window_, client_.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(client_.get(), window_, client_.atom(selection), XCB_CURRENT_TIME);
    setDotsPerInch(dotsPerInch);
    EXPECT_TRUE(client_.isOwned(selection));
}

void XSettings::setDotsPerInch(int dotsPerInch) {
    const QByteArray all = settings(++serial_, dotsPerInch);
    const auto property = client_.atom("_XSETTINGS_SETTINGS");
    xcb_change_property(client_.get(), XCB_PROP_MODE_REPLACE, window_, property, property, 8,
                        static_cast<std::uint32_t>(all.size()), all.constData());
    client_.finish();
}

} // namespace brellowind::test
