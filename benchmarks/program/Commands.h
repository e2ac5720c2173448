#pragma once

#include "FrameLog.h"

#include <QObject>
#include <string>
#include <thread>

namespace brellowind {
class BrellowindApp;
}

namespace brellowind::benchmarks {

/// Does what the lines of the standard input say, and answers each with a line. A thread waits for
/// them, so that the main loop watches no more than it does in the program itself. The end of the
/// input ends the program.
class Commands : public QObject {
    Q_OBJECT

public:
    Commands(BrellowindApp& app, FrameLog& frames);
    ~Commands() override;

private:
    void read();
    std::string answer(const std::string& command);
    std::string lineRect() const;
    void closeSettings();

    BrellowindApp& app_;
    FrameLog& frames_;
    std::thread reader_;
};

} // namespace brellowind::benchmarks
