// SPDX-License-Identifier: MIT

#include "e2e/ShellFixture.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace brellowind::test {

QString Feed::ownVersion() {
    return QStringLiteral(BRELLOWIND_VERSION);
}

QByteArray Feed::release(const QString& version, const QString& url) {
    return QJsonDocument(
               QJsonObject{{QStringLiteral("version"), version}, {QStringLiteral("url"), url}})
        .toJson();
}

void Feed::answer(const demo::Exchange& exchange) {
    ++requests_;
    if (!held_)
        exchange.respond(status, body);
}

ShellOnDesktop::ShellOnDesktop() {
    service.handler = [this, lyrics = service.handler](const demo::Exchange& exchange) {
        if (exchange.path == "/latest.json")
            feed.answer(exchange);
        else
            lyrics(exchange);
    };
}

void ShellOnDesktop::startWithSettings() {
    start();
    choose("Open Settings");
    EXPECT_TRUE(settingsAreInFront());
}

bool ShellOnDesktop::settingsAreInFront() {
    return waitUntil([this] {
        const auto window = settings().window();
        return window != 0 && x.isViewable(window) && x.focus() == window;
    });
}

bool ShellOnDesktop::settingsAreGone() {
    return waitUntil([this] { return !settings().exists(); });
}

void ShellOnDesktop::press(const char* element) {
    const QPointF middle = settings().middleOf(element) * scale;
    person.pressAt(x.geometry(settings().window()).topLeft() + middle.toPoint());
}

bool ShellOnDesktop::checksBecome(int count) {
    return waitUntil([&] { return feed.requests() >= count; }) && feed.requests() == count;
}

} // namespace brellowind::test
