// SPDX-License-Identifier: MIT

#include "Recorder.h"

#include "app/BrellowindApp.h"
#include "views/NotchRootView.h"
#include "views/window/PillWindow.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <cstdio>

namespace brellowind::demo {
namespace {

constexpr std::chrono::milliseconds motion{900}; ///< duration of the pill's animations
constexpr int pillPictureHeight = 120;
constexpr int panelPictureHeight = 480;

} // namespace

Recorder::Recorder(BrellowindApp& app)
    : app_(app), redraws_(app.rootView().onRedraw([this] { redrawn(); })) {
    rest_.setSingleShot(true);
    connect(&rest_, &QTimer::timeout, this, &Recorder::renderPicture);
    redrawn();
}

bool Recorder::savePictures(const QString& folder) {
    QDir directory(folder);
    if (!directory.mkpath(QStringLiteral(".")))
        return false;
    for (const QString& old : directory.entryList({QStringLiteral("[0-9][0-9]-*.png")}))
        directory.remove(old);
    folder_ = directory;
    rest_.start(motion);
    return true;
}

void Recorder::redrawn() {
    const auto text = app_.rootView().currentLineText();
    if (text == shown_)
        return;
    shown_ = text;
    const double position = app_.rootView().nowPlaying().positionSec.get();
    const int minutes = static_cast<int>(position / 60);
    std::printf("%d:%05.2f  %s\n", minutes, position - minutes * 60, shown_.c_str());
    std::fflush(stdout);
    if (folder_)
        rest_.start(motion);
}

void Recorder::renderPicture() {
    const QRect frame = app_.window().geometry();
    const bool panel = app_.rootView().form().isArtExpanded;
    const QPixmap picture = app_.window().screen()->grabWindow(
        0, frame.x(), frame.y(), frame.width(), panel ? panelPictureHeight : pillPictureHeight);
    QString name = QString::fromStdString(shown_).toLower().simplified().replace(u' ', u'-');
    name.removeIf(
        [](QChar c) { return c != u'-' && !(c.isLetterOrNumber() && c.unicode() < 128); });
    const QString file = QStringLiteral("%1-%2.png")
                             .arg(++pictures_, 2, 10, QLatin1Char('0'))
                             .arg(name.isEmpty() ? QStringLiteral("note") : name.left(32));
    if (!picture.save(folder_->filePath(file)))
        failed_ = true;
}

} // namespace brellowind::demo
