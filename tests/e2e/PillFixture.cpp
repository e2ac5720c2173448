// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"

namespace brellowind::test {
namespace {

const QByteArray lyrics = R"({"syncedLyrics":"[00:00.00]line"})";

QSize size(const QString& screen) {
    const auto numbers = screen.split(u'x');
    return {numbers.value(0).toInt(), numbers.value(1).toInt()};
}

} // namespace

PillOnDesktop::PillOnDesktop(const QString& screen, int scale_)
    : scale(scale_), screenSize(size(screen)), desktop(screen),
      service([](const demo::Exchange& exchange) { exchange.respond(200, lyrics); }) {
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    person.pointAt({2, screenSize.height() - 2});
}

ObservedProgram& PillOnDesktop::start() {
    auto& started = program.emplace(ProgramSession::on(desktop, environment), service.origin());
    EXPECT_TRUE(waitUntil([&] { return x.isViewable(started.window()); }));
    return started;
}

ObservedProgram& PillOnDesktop::startSinging() {
    player.emplace(desktop.bus.connection());
    player->setTrack(PlayerProcess::metadata(QStringLiteral("Song"), QStringLiteral("Artist"),
                                             QStringLiteral("Album"), 600000));
    player->setStatus("Playing");
    auto& started = start();
    EXPECT_TRUE(started.shows(QStringLiteral("line")));
    EXPECT_TRUE(started.comesToRest());
    return started;
}

QPoint PillOnDesktop::middleOf(const char* item) {
    const QPointF middle = program->rectangle(item).center() * scale;
    return x.geometry(program->window()).topLeft() + middle.toPoint();
}

void PillOnDesktop::enterPill() {
    person.pointAt(middleOf("pill"));
    EXPECT_TRUE(program->becomes("hovered"));
    EXPECT_TRUE(program->comesToRest());
}

void PillOnDesktop::leavePill() {
    person.pointAt({2, screenSize.height() - 2});
    EXPECT_TRUE(program->becomes("hovered", false));
    EXPECT_TRUE(program->comesToRest());
}

void PillOnDesktop::openMenu() {
    EXPECT_TRUE(program->comesToRest()); // it may only just have started
    enterPill();
    person.pressAt(middleOf("pill"), Person::secondary);
    EXPECT_TRUE(waitUntil([&] { return program->menu() != 0; }));
    EXPECT_TRUE(waitUntil([&] { return x.isViewable(program->menu()); }));
}

QPoint PillOnDesktop::middleOfEntry(const char* text) {
    const QPointF middle = program->menuEntry(text).center() * scale;
    return x.geometry(program->menu()).topLeft() + middle.toPoint();
}

void PillOnDesktop::choose(const char* entry) {
    openMenu();
    person.pressAt(middleOfEntry(entry));
}

PlainWindow& PillOnDesktop::below() {
    if (!below_)
        below_.emplace(desktop.xServer.display(), QRect(QPoint(0, 0), screenSize),
                       PlainWindow::Kind::fullScreen);
    return *below_;
}

} // namespace brellowind::test
