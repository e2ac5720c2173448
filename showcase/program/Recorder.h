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

/// Prints each text that the pill shows with the song's time at which it appeared, and saves a
/// picture of the screen's top once the pill has come to rest.
class Recorder : public QObject {
public:
    /// `app` must outlive the recorder.
    explicit Recorder(BrellowindApp& app);

    /// Saves numbered pictures into `folder`, which is made when it is missing and emptied of
    /// earlier ones. False when it cannot be written.
    bool savePictures(const QString& folder);

    /// Whether a picture could not be saved.
    bool failed() const { return failed_; }

private:
    void redrawn();
    void takePicture();

    BrellowindApp& app_;
    Subscription redraws_;
    std::string shown_;
    std::optional<QDir> folder_;
    QTimer rest_;
    int pictures_ = 0;
    bool failed_ = false;
};

} // namespace brellowind::demo
