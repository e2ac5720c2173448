#include "views/pill/Stage.h"

#include <QGuiApplication>

namespace brellowind::test {

Stage::Stage() {
    FrameDriver::shared().freeze(100);
    window.resize(windowWidth, windowHeight);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    hover(QPoint(5, windowHeight - 5));
    settle();
}

Stage::~Stage() {
    settle();
    FrameDriver::shared().thaw();
}

void Stage::settle() {
    for (int i = 0; i < 3; ++i) {
        step(0);
        step(10);
    }
}

void Stage::step(double seconds) {
    machine.runTurns();
    FrameDriver::shared().step(seconds);
    QCoreApplication::processEvents();
    machine.runTurns();
}

Item* Stage::item(const char* name) const {
    auto* found = window.root().findChild<Item*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

Item* Stage::below(Item* parent, const char* type) {
    for (auto* child : parent->childItems()) {
        if (child->metaObject()->className() == QByteArray("brellowind::") + type)
            return child;
        if (auto* found = below(child, type))
            return found;
    }
    return nullptr;
}

QRectF Stage::layout(Item* laidOut) const {
    auto* root = pill()->parentItem();
    return {laidOut->transform(root).map(QPointF(0, 0)), laidOut->size()};
}

QPoint Stage::onWindow(Item* of, QPointF point) {
    return of->mapToScene(point).toPoint();
}

QPoint Stage::middle(Item* of) {
    return onWindow(of, of->boundingRect().center());
}

void Stage::click(QPoint at, Qt::MouseButton button) {
    QTest::mouseClick(&window, button, {}, at);
    machine.runTurns();
}

void Stage::hover(QPoint at) {
    QTest::mouseMove(&window, at);
    machine.runTurns();
}

} // namespace brellowind::test
