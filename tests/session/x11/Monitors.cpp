#include "session/x11/Monitors.h"

#include "companion/Companion.h"

#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

int millimetres(int pixels) {
    return static_cast<int>(pixels * 25.4 / 96);
}

} // namespace

void Monitors::add(const QString& name, QRect part, bool withOutput) {
    const QString place = QStringLiteral("%1/%2x%3/%4+%5+%6")
                              .arg(part.width())
                              .arg(millimetres(part.width()))
                              .arg(part.height())
                              .arg(millimetres(part.height()))
                              .arg(part.x())
                              .arg(part.y());
    arrange({QStringLiteral("--setmonitor"), name, place,
             withOutput ? QStringLiteral("screen") : QStringLiteral("none")});
}

void Monitors::remove(const QString& name) {
    arrange({QStringLiteral("--delmonitor"), name});
}

void Monitors::arrange(const QStringList& arguments) {
    demo::Companion xrandr(QStringLiteral("xrandr"), arguments, desktop_.environment());
    EXPECT_EQ(xrandr.finish(), 0) << qPrintable(arguments.join(u' '));
}

} // namespace brellowind::test
