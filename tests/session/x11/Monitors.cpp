// SPDX-License-Identifier: MIT

#include "session/x11/Monitors.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

const auto ownOutput = QStringLiteral("screen");

/// The geometry argument of xrandr, with the size in millimetres at about 96 dpi.
QString geometry(const QRect& pixels) {
    return QStringLiteral("%1/%2x%3/%4+%5+%6")
        .arg(pixels.width())
        .arg(pixels.width() / 4)
        .arg(pixels.height())
        .arg(pixels.height() / 4)
        .arg(pixels.x())
        .arg(pixels.y());
}

} // namespace

Monitors::~Monitors() {
    for (const auto& monitor : QStringList(added_))
        remove(monitor);
    if (reconfigured_)
        resize(initialSize);
}

void Monitors::add(const QString& name, const QRect& pixels, bool primary) {
    configure({QStringLiteral("--setmonitor"), (primary ? QStringLiteral("*") : QString()) + name,
               geometry(pixels), added_.isEmpty() ? ownOutput : QStringLiteral("none")});
    added_.append(name);
}

void Monitors::remove(const QString& name) {
    configure({QStringLiteral("--delmonitor"), name});
    added_.removeAll(name);
}

void Monitors::resize(QSize pixels) {
    const QString width = QString::number(pixels.width());
    const QString height = QString::number(pixels.height());
    const QString mode = width + QLatin1Char('x') + height;
    static QStringList added; // the server keeps them
    const QString addition = display_ + QLatin1Char(' ') + mode;
    if (pixels != initialSize && !added.contains(addition)) {
        configure({QStringLiteral("--newmode"), mode, QStringLiteral("60"), width, width, width,
                   width, height, height, height, height});
        configure({QStringLiteral("--addmode"), ownOutput, mode});
        added.append(addition);
    }
    configure({QStringLiteral("--output"), ownOutput, QStringLiteral("--mode"), mode});
    reconfigured_ = true;
}

void Monitors::switchOff() {
    // The X screen cannot be empty.
    configure({QStringLiteral("--fb"), QStringLiteral("640x480"), QStringLiteral("--output"),
               ownOutput, QStringLiteral("--off")});
    reconfigured_ = true;
}

void Monitors::configure(const QStringList& arguments) {
    QProcess xrandr;
    xrandr.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    xrandr.start(QStringLiteral("xrandr"),
                 QStringList{QStringLiteral("-display"), display_} + arguments);
    EXPECT_TRUE(xrandr.waitForFinished()) << qPrintable(arguments.join(QLatin1Char(' ')));
    EXPECT_EQ(xrandr.exitCode(), 0) << qPrintable(arguments.join(QLatin1Char(' ')));
}

} // namespace brellowind::test
