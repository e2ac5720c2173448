// SPDX-License-Identifier: MIT

#include "views/pill/Stage.h"

#include "views/SteppedFrames.h"

#include <QGuiApplication>
#include <utility>

namespace brellowind::test {

OffscreenPill::OffscreenPill(std::unique_ptr<FrameDriver> driver) : frames(std::move(driver)) {
    window.resize(windowWidth, windowHeight);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    hover(QPoint(5, windowHeight - 5));
}

Item* OffscreenPill::item(const char* name) const {
    auto* found = window.root().findChild<Item*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

Item* OffscreenPill::below(Item* parent, const char* type) {
    for (auto* child : parent->childItems()) {
        if (child->metaObject()->className() == QByteArray("brellowind::") + type)
            return child;
        if (auto* found = below(child, type))
            return found;
    }
    return nullptr;
}

SceneWindow* OffscreenPill::menu() {
    for (auto* found : QGuiApplication::allWindows())
        if (found->objectName() == QStringLiteral("menu"))
            return qobject_cast<SceneWindow*>(found);
    return nullptr;
}

QRectF OffscreenPill::layout(Item* laidOut) const {
    const auto* root = item("notch");
    return {laidOut->transform(root).map(QPointF(0, 0)), laidOut->size()};
}

QPoint OffscreenPill::onWindow(Item* of, QPointF point) {
    return of->transform().map(point).toPoint();
}

QPoint OffscreenPill::middle(Item* of) {
    return onWindow(of, of->boundingRect().center());
}

void OffscreenPill::click(QPoint at, Qt::MouseButton button) {
    QTest::mouseClick(&window, button, {}, at);
    machine.runTurns();
}

void OffscreenPill::hover(QPoint at) {
    QTest::mouseMove(&window, at);
    machine.runTurns();
}

Stage::Stage() : OffscreenPill(std::make_unique<SteppedFrames>()) {
    settle();
}

void Stage::settle() {
    for (int i = 0; i < 3; ++i) {
        step(0);
        step(10);
    }
}

void Stage::step(double seconds) {
    machine.runTurns();
    static_cast<SteppedFrames&>(*frames).step(seconds);
    QCoreApplication::processEvents();
    machine.runTurns();
}

} // namespace brellowind::test
