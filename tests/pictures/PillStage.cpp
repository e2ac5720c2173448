// SPDX-License-Identifier: MIT

#include "pictures/PillStage.h"

#include "backdrop/Desktop.h"
#include "service/DemoSong.h"
#include "views/drawing/WaveformGlyph.h"
#include "views/scene/TapArea.h"

#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace brellowind::test {
namespace {

constexpr int framesPerSecond = 60;
constexpr int framesToRest =
    198; ///< at which the highlight is in the middle of the waveform symbol
constexpr int waveformStepsPerSecond = 10;
constexpr double screenWidth = 1512;
constexpr double screenHeight = 982;

/// The service's answer for lyrics in the LRC format.
std::string answer(const QString& lrc) {
    if (lrc.isEmpty())
        return "{}";
    return QJsonDocument(QJsonObject{{QStringLiteral("syncedLyrics"), lrc}}).toJson().toStdString();
}

void send(QWindow& window, QEvent::Type type, QPointF at, Qt::MouseButton button) {
    QMouseEvent event(type, at, window.mapToGlobal(at), button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

/// An opaque black image of the size of `window`.
QImage black(const QWindow& window) {
    const double scale = window.devicePixelRatio();
    QImage image(window.size() * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    return image;
}

/// The content of `window` over `behind`.
QImage grabbed(SceneWindow& window, QImage behind) {
    QPainter(&behind).drawImage(QPointF(0, 0), window.grab());
    return behind;
}

} // namespace

void prepareForPictures() {
    qputenv("FONTCONFIG_FILE", BRELLOWIND_PICTURE_FONTS);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

PillStage::PillStage() {
    parts_.decoder = &images_;
    root_ = parts_.make();
    const platform::Screen screen{.frame = {0, 0, screenWidth, screenHeight}};
    machine_.screens.connected = {screen};
    machine_.screens.mainScreen = screen;
    spotify_.quit();
    content_ = std::make_unique<PillWindow>(*root_, clock_, windowSystem_);
    content_->resize(640, NotchMetrics::windowHeight);
    QResizeEvent resize(content_->size(), {}); // hidden windows get none
    QCoreApplication::sendEvent(content_.get(), &resize);
    root_->appear();
    rest();
}

PillStage::~PillStage() = default;

void PillStage::play(const QString& title, const QString& artist, const QString& lrc,
                     bool withCover) {
    lyrics_ = answer(lrc);
    songFrames_ = 0;
    spotify_.playSong(title.toStdString());
    spotify_.artist = artist.toStdString();
    spotify_.artwork = withCover ? "https://covers.example/cover.png" : "";
    spotify_.plays = true;
    spotify_.launch();
}

void PillStage::sing(const QString& line, bool withCover) {
    play(QStringLiteral("Paper Lanterns"), QStringLiteral("The Windowsill Quartet"),
         QStringLiteral("[00:00.00]") + line, withCover);
    rest();
}

void PillStage::setPlaying(bool plays) {
    if (plays != root_->nowPlaying().isPlaying.get())
        root_->tapWaveform();
    runTurns();
}

void PillStage::setPointerInside(bool inside) {
    const Point above{screenWidth / 2, screenHeight - 4};
    machine_.pointer.move(inside ? above : Point{0, 0});
    runTurns();
}

void PillStage::step() {
    const auto at = [](int frame) {
        return std::chrono::milliseconds(frame * 1000 / framesPerSecond);
    };
    machine_.mainLoop.advance(at(frames_ + 1) - at(frames_));
    ++frames_;
    if (spotify_.plays)
        spotify_.position = songFrames_++ / double(framesPerSecond);
    runTurns();
    for (auto* glyph : content_->root().findChildren<WaveformGlyph*>())
        glyph->setStep(frames_ * waveformStepsPerSecond / framesPerSecond);
    clock_.step(1.0 / framesPerSecond);
}

void PillStage::rest() {
    for (int i = 0; i < framesToRest; ++i)
        step();
}

QImage PillStage::window() {
    return grabbed(*content_, desktop());
}

QImage PillStage::desktop() const {
    QImage image = black(*content_);
    QPainter painter(&image);
    demo::paintDesktop(painter, content_->size());
    return image;
}

QImage PillStage::pill() {
    return cropped(window(), pillRect().adjusted(-16, 0, 16, 28));
}

QImage PillStage::menu(const QString& hovered) {
    const QPointF band(content_->width() / 2.0, 5);
    send(*content_, QEvent::MouseButtonPress, band, Qt::RightButton);
    send(*content_, QEvent::MouseButtonRelease, band, Qt::RightButton);
    const auto windows = QGuiApplication::allWindows();
    auto* menu = qobject_cast<SceneWindow*>(*std::ranges::find(
        windows, QStringLiteral("menu"), [](auto* window) { return window->objectName(); }));
    QCoreApplication::processEvents(); // resizes the window
    for (auto* entry : menu->root().findChildren<TapArea*>())
        if (entry->accessibleName() == hovered)
            send(*menu, QEvent::MouseMove, entry->transform().map(entry->boundingRect().center()),
                 Qt::NoButton);
    const QImage picture = grabbed(*menu, black(*menu));
    menu->close();
    return picture;
}

QRectF PillStage::pillRect() const {
    const auto* shape = content_->root().findChild<Item*>(QStringLiteral("pill"));
    return shape->mapRectToScene(shape->boundingRect());
}

void PillStage::runTurns() {
    machine_.mainLoop.runTurns();
    answerRequests();
    machine_.mainLoop.runTurns();
}

void PillStage::answerRequests() {
    static const auto song = demo::DemoSong::load(QStringLiteral(BRELLOWIND_DEMO_SONG));
    for (; answered_ < machine_.http.requests.size(); ++answered_) {
        const bool forLyrics =
            machine_.http.requests[answered_]->request.url.find("/api/get") != std::string::npos;
        if (!forLyrics)
            machine_.http.answer(answered_, platform::HttpResponse{200, song->cover.toStdString()});
        else if (answersLyrics_)
            machine_.http.answer(answered_, platform::HttpResponse{200, lyrics_});
    }
}

QImage cropped(const QImage& window, const QRectF& rect) {
    const double scale = window.devicePixelRatio();
    const QRect pixels = QRectF(rect.topLeft() * scale, rect.size() * scale).toAlignedRect();
    QImage part = window.copy(pixels & window.rect());
    part.setDevicePixelRatio(scale);
    return part;
}

} // namespace brellowind::test
