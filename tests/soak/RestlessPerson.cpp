// SPDX-License-Identifier: MIT

#include "soak/RestlessPerson.h"

#include "session/EventLoop.h"

#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr int margin = 30; ///< around the pill, which may be growing

// What the tabs of the settings show.
const auto launchAtLogin = QStringLiteral("Launch at Login");
const auto website = QStringLiteral("Visit our website");

} // namespace

RestlessPerson::RestlessPerson(const XClient& x, ObservedProgram& program, Chance& chance)
    : x_(x), program_(program), chance_(chance), person_(x) {}

void RestlessPerson::act() {
    const int what = chance_.below(1000);
    if (what < 700)
        point();
    else if (what < 980)
        click();
    else
        useMenu();
}

void RestlessPerson::leave() {
    person_.pointAt({2, 500});
}

void RestlessPerson::point() {
    ++movements;
    if (chance_.onceIn(10))
        leave();
    else
        person_.pointAt(top() + QPoint(chance_.below(400) - 200, chance_.below(120)));
}

void RestlessPerson::click() {
    ++clicks;
    const auto place = chance_.oneOf<QPoint>({
        {-107, 15}, // the cover
        {108, 15},  // the waveform
        {0, 15},
        {0, 40},
        {chance_.below(300) - 150, chance_.below(100)},
        {chance_.below(300) - 150, chance_.below(420)},
    });
    person_.pressAt(top() + place);
}

void RestlessPerson::useMenu() {
    EXPECT_TRUE(waitUntil([this] { // the pill may be about to go to another place
        person_.pointAt(top() + QPoint(chance_.below(9), 15));
        return program_.is("hovered");
    }));
    runFor(std::chrono::milliseconds(50)); // until it receives clicks
    person_.press(Person::secondary);
    EXPECT_TRUE(waitUntil([this] { return program_.menu() != 0; })) << "no menu";
    ++menus;
    if (chance_.onceIn(3)) {
        person_.pressEscape();
    } else if (chance_.onceIn(2)) {
        person_.pressAt({2, 500});
    } else {
        const char* entry = chance_.oneOf<const char*>({"Open Settings", "Check for Updates…"});
        const QPoint middle = program_.menuEntry(entry).center().toPoint();
        person_.pressAt(x_.geometry(program_.menu()).topLeft() + middle);
        useSettings();
    }
    EXPECT_TRUE(waitUntil([this] { return program_.menu() == 0; })) << "the menu stays";
}

void RestlessPerson::useSettings() {
    const auto& window = program_.settings();
    EXPECT_TRUE(waitUntil([&] {
        return window.window() != 0 && x_.isViewable(window.window()) &&
               x_.focus() == window.window();
    })) << "no settings";
    ++settings;
    for (int presses = chance_.below(4); presses > 0; --presses) {
        const bool general = chance_.onceIn(2);
        const bool pressed = press(general ? "General" : "About");
        EXPECT_TRUE(!pressed || window.shows(general ? launchAtLogin : website));
    }
    if (window.texts().contains(launchAtLogin))
        press("Launch at Login");
    person_.pressEscape();
    EXPECT_TRUE(waitUntil([&] { return !window.exists(); })) << "the settings stay";
}

bool RestlessPerson::press(const char* element) {
    const QPoint middle = program_.settings().middleOf(element).toPoint();
    const QPoint place = x_.geometry(program_.settings().window()).topLeft() + middle;
    const QRect pill = program_.rectangle("pill").toAlignedRect();
    const QPoint origin = x_.geometry(program_.window()).topLeft();
    if (pill.translated(origin).adjusted(-margin, -margin, margin, margin).contains(place))
        return false;
    person_.pressAt(place);
    return true;
}

QPoint RestlessPerson::top() const {
    const QRect window = x_.geometry(program_.window());
    return {window.center().x(), window.top()};
}

} // namespace brellowind::test
