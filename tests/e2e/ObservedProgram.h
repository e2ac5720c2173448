#pragma once

#include "companion/Companion.h"
#include "session/Desktop.h"

#include <QObject>
#include <QStringList>

namespace brellowind::test {

/// The program, running, and what its pill shows.
class ObservedProgram : public QObject {
    Q_OBJECT

public:
    /// Runs it on `desktop` with the lyrics service at `lyricsOrigin`. Fails the running test when
    /// no pill appears.
    ObservedProgram(const Desktop& desktop, const QString& lyricsOrigin);

    /// The text that the pill's line shows at this moment.
    QString text() const { return texts_.isEmpty() ? QString() : texts_.constLast(); }

    /// Every text that it has shown, in order.
    QStringList texts() const { return texts_; }

    /// Forgets the texts before the one that it shows.
    void forgetEarlierTexts() { texts_ = {text()}; }

    /// Waits until the pill shows `text`.
    bool shows(const QString& text);

    demo::Companion& process() { return process_; }

private:
    Q_SLOT void textChanged(const QString& text);

    demo::Companion process_;
    QStringList texts_;
};

} // namespace brellowind::test
