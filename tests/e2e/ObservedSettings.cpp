// SPDX-License-Identifier: MIT

#include "e2e/ObservedSettings.h"

#include "session/EventLoop.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

constexpr std::chrono::milliseconds stillness{100};

} // namespace

ObservedSettings::ObservedSettings(QDBusConnection bus)
    : observer_(std::move(bus), QStringLiteral("/settings"),
                QStringLiteral("org.brellowind.Settings")) {}

bool ObservedSettings::shows(const QString& text) const {
    return waitUntil([&] { return texts().contains(text); });
}

QVariant ObservedSettings::property(const char* element, const char* name) const {
    return observer_.ask("Property", {QString::fromUtf8(element), QString::fromLatin1(name)});
}

QPointF ObservedSettings::middleOf(const char* element) const {
    std::optional<QRectF> seen;
    QElapsedTimer since;
    EXPECT_TRUE(waitUntil([&] {
        const auto now = observer_.rectangle("Rectangle", {QString::fromUtf8(element)});
        if (now != seen)
            since.start();
        seen = now;
        return seen && since.elapsed() >= stillness.count();
    })) << element;
    return seen ? seen->center() : QPointF();
}

} // namespace brellowind::test
