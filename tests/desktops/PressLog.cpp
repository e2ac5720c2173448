// SPDX-License-Identifier: MIT

#include "desktops/PressLog.h"

#include "session/EventLoop.h"

#include <QRegularExpression>
#include <gtest/gtest.h>
#include <optional>

namespace brellowind::test {
namespace {

const auto fullScreenKind = QStringLiteral("full-screen");

QString hexadecimal(const QColor& colour) {
    return colour.name().mid(1);
}

std::optional<PressLog::Press> press(const QString& line) {
    const auto words = line.split(QLatin1Char(' '));
    if (words.value(0) != QLatin1String("press"))
        return {};
    return PressLog::Press{{words.value(1).toDouble(), words.value(2).toDouble()},
                           words.value(3).toInt()};
}

} // namespace

PressLog PressLog::fullScreen(const Compositor& compositor, QColor colour) {
    return window(compositor, fullScreenKind, colour);
}

PressLog PressLog::maximized(const Compositor& compositor, QColor colour) {
    return window(compositor, QStringLiteral("maximized"), colour);
}

PressLog PressLog::window(const Compositor& compositor, const QString& kind, QColor colour) {
    PressLog window(compositor, BRELLOWIND_DESKTOP_WINDOW, {kind, hexadecimal(colour)});
    const auto isFullyGrown = [&] {
        const auto picture = compositor.screenshot();
        const QRect rect = picture.rect();
        const auto is = [&](QPoint corner) { return picture.pixelColor(corner) == colour; };
        // A maximised window may be below a panel.
        return is(rect.bottomLeft()) && is(rect.bottomRight()) &&
               (kind != fullScreenKind || (is(rect.topLeft()) && is(rect.topRight())));
    };
    if (compositor.letsWindowsGrow() && !waitUntil(isFullyGrown))
        throw DesktopFailure(QStringLiteral("a window did not reach the corners of the screen"));
    return window;
}

PressLog PressLog::panel(const Compositor& compositor, QColor colour) {
    return {compositor, BRELLOWIND_DESKTOP_PANEL, {hexadecimal(colour)}};
}

PressLog::PressLog(const Compositor& compositor, const char* program, const QStringList& arguments)
    : process_(compositor.start(QString::fromUtf8(program), arguments)) {
    if (!waitUntil([this] { return !size().isEmpty() || !isRunning(); }) || !isRunning())
        throw DesktopFailure(QStringLiteral("%1 was not shown").arg(QString::fromUtf8(program)));
}

QSize PressLog::size() {
    const auto shown = lines().filter(QRegularExpression(QStringLiteral("^shown ")));
    const auto words = shown.value(shown.size() - 1).split(QLatin1Char(' '));
    return {words.value(1).toInt(), words.value(2).toInt()};
}

QList<PressLog::Press> PressLog::takePresses() {
    QList<Press> presses;
    for (lines(); taken_ < lines_.size(); ++taken_)
        if (const auto found = press(lines_[taken_]))
            presses.append(*found);
    return presses;
}

PressLog::Press PressLog::awaitPress() {
    std::optional<Press> found;
    EXPECT_TRUE(waitUntil([&] {
        for (lines(); !found && taken_ < lines_.size(); ++taken_)
            found = press(lines_[taken_]);
        return found.has_value();
    })) << "no press came, only:\n"
        << qPrintable(lines_.join(QLatin1Char('\n')));
    return found.value_or(Press{});
}

bool PressLog::awaitLine(const QString& line) {
    return waitUntil([&] {
        const auto index = lines().indexOf(line, awaited_);
        if (index >= 0)
            awaited_ = index + 1;
        return index >= 0;
    });
}

bool PressLog::hasKeyboard() {
    return lines().lastIndexOf(QStringLiteral("keyboard enter")) >
           lines().lastIndexOf(QStringLiteral("keyboard leave"));
}

const QStringList& PressLog::lines() {
    unfinished_ += process_->remainingOutput();
    for (auto end = unfinished_.indexOf('\n'); end >= 0; end = unfinished_.indexOf('\n')) {
        lines_.append(QString::fromUtf8(unfinished_.left(end)));
        unfinished_.remove(0, end + 1);
    }
    return lines_;
}

} // namespace brellowind::test
