// SPDX-License-Identifier: MIT

#include "settings/window/SettingsFixture.h"

#include <QCoreApplication>
#include <QTest>
#include <algorithm>
#include <functional>
#include <stdexcept>

namespace brellowind {
namespace {

void forEachVisible(QQuickItem* item, const std::function<void(QQuickItem*)>& visit) {
    if (!item->isVisible())
        return;
    visit(item);
    for (auto* child : item->childItems())
        forEachVisible(child, visit);
}

QPoint middle(const QQuickItem* item) {
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

} // namespace

void SettingsFixture::open() {
    settings.open();
    turn();
    ASSERT_TRUE(QTest::qWaitForWindowActive(settings.window()));
}

void SettingsFixture::turn() {
    machine.mainLoop.runTurns();
    QCoreApplication::processEvents();
}

void SettingsFixture::answer(platform::HttpResult result) {
    ASSERT_FALSE(machine.http.requests.empty());
    machine.http.answer(machine.http.requests.size() - 1, std::move(result));
    turn();
}

void SettingsFixture::answerVersion(const std::string& version) {
    answer(platform::HttpResponse{200, R"({"version": ")" + version +
                                           R"(", "url": "https://brellowind.example/get"})"});
}

QQuickItem* SettingsFixture::item(const char* name) {
    auto* found = window().contentItem()->findChild<QQuickItem*>(QString::fromLatin1(name));
    if (!found)
        throw std::runtime_error(std::string("no item is called ") + name);
    return found;
}

QQuickItem* SettingsFixture::pressable(const QString& text) {
    QQuickItem* found = nullptr;
    forEachVisible(window().contentItem(), [&](QQuickItem* candidate) {
        if (candidate->metaObject()->indexOfSignal("clicked()") >= 0 &&
            candidate->property("text") == text)
            found = candidate;
    });
    if (!found)
        throw std::runtime_error("nothing to press says " + text.toStdString());
    return found;
}

std::vector<std::string> SettingsFixture::visibleTexts() {
    std::vector<QQuickItem*> items;
    forEachVisible(window().contentItem(), [&](QQuickItem* candidate) {
        if (candidate->inherits("QQuickText"))
            items.push_back(candidate);
    });
    std::ranges::sort(items, [](const QQuickItem* a, const QQuickItem* b) {
        const QPoint first = middle(a);
        const QPoint second = middle(b);
        if (std::abs(first.y() - second.y()) > 2)
            return first.y() < second.y();
        return first.x() < second.x();
    });
    std::vector<std::string> texts;
    for (const auto* text : items)
        texts.push_back(text->property("text").toString().toStdString());
    return texts;
}

void SettingsFixture::click(QQuickItem* item) {
    QTest::mouseClick(&window(), Qt::LeftButton, {}, middle(item));
    turn();
}

void SettingsFixture::moveTo(QQuickItem* item) {
    QTest::mouseMove(&window(), middle(item));
    turn();
}

void SettingsFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&window(), key, modifiers);
    turn();
}

std::string SettingsFixture::focused() {
    auto* focus = window().activeFocusItem();
    auto* interface = focus ? accessible(focus) : nullptr;
    return interface ? interface->text(QAccessible::Name).toStdString() : "";
}

bool SettingsFixture::hasFocusRing(const QQuickItem* item) {
    return std::ranges::any_of(item->findChildren<QQuickItem*>(), [](const QQuickItem* child) {
        return child->objectName() == u"focusRing" && child->isVisible();
    });
}

QAccessibleInterface* SettingsFixture::accessible(QQuickItem* item) {
    return QAccessible::queryAccessibleInterface(item);
}

} // namespace brellowind
