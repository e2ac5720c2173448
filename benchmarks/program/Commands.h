#pragma once

#include "FrameLog.h"

#include <QSocketNotifier>
#include <string>

namespace brellowind {
class BrellowindApp;
}

namespace brellowind::benchmarks {

/// Does what the lines of the standard input say, and answers each with a line.
class Commands : public QObject {
    Q_OBJECT

public:
    Commands(BrellowindApp& app, FrameLog& frames);

public Q_SLOTS:
    void countChange() { ++changes_; }

private:
    void read();
    std::string answer(const std::string& command);
    std::string lineRect() const;
    void closeSettings();
    void watchModel();

    BrellowindApp& app_;
    FrameLog& frames_;
    QSocketNotifier input_;
    int changes_ = 0; ///< of properties that reached QML
};

} // namespace brellowind::benchmarks
