// SPDX-License-Identifier: MIT

#include "desktops/Sway.h"

#include "desktops/WlrInput.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace brellowind::test {
namespace {

QByteArray configuration(const CompositorOptions& options, const QString& atStart) {
    const QSize pixels = (QSizeF(options.size) * options.scale).toSize();
    return QStringLiteral("xwayland %1\n"
                          "output HEADLESS-1 resolution %2x%3 scale %4\n"
                          "default_border none\n"
                          "default_floating_border none\n"
                          "focus_follows_mouse no\n"
                          "focus_on_window_activation focus\n"
                          "exec %5\n")
        .arg(options.xWayland ? QStringLiteral("enable") : QStringLiteral("disable"))
        .arg(pixels.width())
        .arg(pixels.height())
        .arg(options.scale)
        .arg(atStart)
        .toUtf8();
}

} // namespace

Sway::Sway(const CompositorOptions& options) {
    requireProgram(QStringLiteral("sway"), QStringLiteral("sway"));
    requireProgram(QStringLiteral("grim"), QStringLiteral("grim"));
    if (options.xWayland)
        requireProgram(QStringLiteral("Xwayland"), QStringLiteral("xwayland"));
    auto& session = mutableSession();
    session.setVariable(QStringLiteral("LIBSEAT_BACKEND"), QStringLiteral("noop"));
    session.setVariable(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
    session.setVariable(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
    session.setVariable(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
    session.setVariable(QStringLiteral("SWAYSOCK"), session.file(QStringLiteral("sway.socket")));
    session.writeFile(QStringLiteral("sway.config"),
                      configuration(options, displayTellerCommand()));
    launch(QStringLiteral("sway"),
           {QStringLiteral("--config"), session.file(QStringLiteral("sway.config"))});
    awaitDisplays();
    input_ = std::make_unique<WlrInput>(socket());
    awaitDevices();
}

Sway::~Sway() {
    input_.reset();
    end();
}

QImage Sway::screenshot(const QString& screen) const {
    const QString name = screen.isEmpty() ? screens().value(0).name : screen;
    return QImage::fromData(
        session().run(QStringLiteral("grim"), {QStringLiteral("-t"), QStringLiteral("ppm"),
                                               QStringLiteral("-o"), name, QStringLiteral("-")}));
}

void Sway::movePointerTo(QPointF place) {
    QRect desktop;
    for (const auto& screen : screens())
        desktop |= screen.geometry;
    input_->movePointerTo(place, desktop);
}

void Sway::movePointerBy(QPointF distance) {
    input_->movePointerBy(distance);
}

void Sway::button(int code, Stroke stroke) {
    input_->button(code, stroke);
}

void Sway::key(int code, Stroke stroke) {
    input_->key(code, stroke);
}

QList<CompositorScreen> Sway::screens() const {
    const auto answer = message({QStringLiteral("--type"), QStringLiteral("get_outputs")});
    QList<CompositorScreen> screens;
    for (const auto& output : QJsonDocument::fromJson(answer).array()) {
        const auto rectangle = output[QStringLiteral("rect")];
        const auto number = [&](const char* key) { return rectangle[QLatin1String(key)].toInt(); };
        screens.append({output[QStringLiteral("name")].toString(),
                        QRect(number("x"), number("y"), number("width"), number("height"))});
    }
    return screens;
}

void Sway::setScale(double scale) {
    message({QStringLiteral("output"), screens().value(0).name, QStringLiteral("scale"),
             QString::number(scale)});
}

bool Sway::setScreensOn(bool on) {
    message({QStringLiteral("output"), QStringLiteral("*"), QStringLiteral("dpms"),
             on ? QStringLiteral("on") : QStringLiteral("off")});
    return true;
}

QString Sway::addScreen() {
    const auto before = screens().size();
    message({QStringLiteral("create_output")});
    QList<CompositorScreen> now;
    await("the screen was there", [&] { return (now = screens()).size() > before; });
    return now.last().name;
}

QByteArray Sway::message(const QStringList& arguments) const {
    return session().run(QStringLiteral("swaymsg"),
                         QStringList{QStringLiteral("--raw")} + arguments);
}

} // namespace brellowind::test
