// SPDX-License-Identifier: MIT

#include "desktops/pill/PillOnCompositor.h"

#include <cmath>

namespace brellowind::test {
namespace {

/// Lyrics, and the release that runs.
const QByteArray answer =
    R"({"syncedLyrics":"[00:00.00]line", "version":"0.1.0", "url":"http://localhost/"})";
const auto errorFile = QStringLiteral("program.errors");

using std::chrono::seconds;

constexpr QSizeF pillWindow(640, 540);

/// GNOME has no layer shell.
CompositorOptions withWindowSystem(CompositorOptions options) {
    constexpr QLatin1String name(BRELLOWIND_COMPOSITOR);
    options.xWayland = name == QLatin1String("mutter") || name == QLatin1String("gnome-shell");
    return options;
}

} // namespace

PillOnCompositor::PillOnCompositor(const CompositorOptions& options)
    : compositor(
          Compositor::make(QStringLiteral(BRELLOWIND_COMPOSITOR), withWindowSystem(options))),
      service([](const demo::Exchange& exchange) { exchange.respond(200, answer); }) {
    compositor->movePointerTo(screen().bottomLeft());
}

ObservedProgram& PillOnCompositor::start() {
    const auto& user = compositor->session();
    user.writeFile(errorFile, {});
    const auto start = [&user](const QString& file, const QStringList& arguments) {
        return user.start(file, arguments, errorFile);
    };
    return program.emplace(ProgramSession{user.bus(), start, user.file(errorFile)},
                           service.origin());
}

ObservedProgram& PillOnCompositor::startSinging() {
    player.emplace(compositor->session().bus(), compositor->session().environment());
    player->setTrack(PlayerProcess::metadata(QStringLiteral("Song"), QStringLiteral("Artist"),
                                             QStringLiteral("Album"), 600000));
    player->setStatus("Playing");
    auto& started = start();
    EXPECT_TRUE(started.shows(QStringLiteral("line")));
    EXPECT_TRUE(started.comesToRest());
    return started;
}

QRectF PillOnCompositor::area() const {
    const QRectF screen = this->screen();
    const QSizeF size = pillWindow.boundedTo(screen.size());
    return {QPointF(screen.center().x() - size.width() / 2, screen.top()), size};
}

QRectF PillOnCompositor::place(const char* item) {
    return program->rectangle(item).translated(area().topLeft());
}

bool PillOnCompositor::hoverPill() {
    double step = 1;
    compositor->movePointerTo(background());
    return waitUntil([&] {
        compositor->movePointerBy({step = -step, 0});
        return program->is("hovered");
    });
}

void PillOnCompositor::enterPill() {
    EXPECT_TRUE(hoverPill());
    EXPECT_TRUE(program->comesToRest());
}

void PillOnCompositor::leavePill() {
    compositor->movePointerBy({0, area().height()});
    EXPECT_TRUE(program->becomes("hovered", false));
    EXPECT_TRUE(program->comesToRest());
}

void PillOnCompositor::openMenuAt(QPointF place) {
    compositor->click(place, Compositor::secondaryButton);
    EXPECT_TRUE(waitUntil([&] { return program->hasMenu(); }));
    if (below_) {
        EXPECT_TRUE(waitUntil([&] { return !below_->hasKeyboard(); }));
    }
    runFor(std::chrono::milliseconds(200)); // until it is there for pointer and keyboard
}

bool PillOnCompositor::menuCloses() {
    return waitUntil([&] { return !program->hasMenu(); });
}

QPointF PillOnCompositor::middleOfEntry(const char* text) {
    return program->menuPlace().topLeft() + program->menuEntry(text).center();
}

void PillOnCompositor::choose(const char* entry) {
    openMenu();
    compositor->click(middleOfEntry(entry));
}

PressLog& PillOnCompositor::below() {
    if (!below_)
        below_.emplace(PressLog::fullScreen(*compositor, colourBelow()));
    return *below_;
}

Picture PillOnCompositor::picture() const {
    return Picture(compositor->screenshot());
}

QRect PillOnCompositor::silhouette(const Picture& picture) const {
    const double scale = double(picture.image().width()) / screen().width();
    const QRectF area = this->area();
    return picture.differing(colourBelow(),
                             QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect());
}

bool PillOnCompositor::isInPlace(const Picture& picture, double scale) {
    const QRect seen = silhouette(picture);
    const QSizeF told = program->rectangle("pill").size() * scale;
    return seen.top() == 0 && std::abs(seen.width() - told.width()) <= 2 &&
           std::abs(seen.height() - told.height()) <= 2 &&
           std::abs(seen.left() + seen.right() + 1 - picture.image().width()) <= 1;
}

testing::AssertionResult
PillOnCompositor::shows(const char* name, const std::function<bool(const Picture&)>& holds) const {
    std::optional<Picture> seen;
    const bool held = waitUntil([&] { return holds(seen.emplace(picture())); }, seconds(8));
    const auto file = seen->keep(QStringLiteral(BRELLOWIND_COMPOSITOR "-") + QLatin1String(name));
    return (held ? testing::AssertionSuccess() : testing::AssertionFailure())
           << "see " << qPrintable(file);
}

} // namespace brellowind::test
