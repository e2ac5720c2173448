// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"

#include <QDir>
#include <QString>
#include <QTimer>
#include <optional>
#include <string>

namespace brellowind {
class BrellowindApp;
}

namespace brellowind::demo {

/// Prints each text of the pill with the song's time when it appeared, and saves a screenshot of
/// the screen's top after the animation.
class Recorder : public QObject {
public:
    /// `app` must outlive this object.
    explicit Recorder(BrellowindApp& app);

    /// Saves numbered pictures in `folder`. Creates it, or removes earlier pictures. Returns false
    /// if it is not writable.
    bool savePictures(const QString& folder);

    /// Whether a picture could not be saved.
    bool failed() const { return failed_; }

private:
    void redrawn();
    void renderPicture();

    BrellowindApp& app_;
    Subscription redraws_;
    std::string shown_;
    std::optional<QDir> folder_;
    QTimer rest_;
    int pictures_ = 0;
    bool failed_ = false;
};

} // namespace brellowind::demo
