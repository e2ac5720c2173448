// SPDX-License-Identifier: MIT

#pragma once

#include "FrameLog.h"

#include <QObject>
#include <string>
#include <thread>

namespace brellowind {
class BrellowindApp;
}

namespace brellowind::benchmarks {

/// Executes commands from the standard input, one per line, and answers each with a line. Reads in
/// a thread, so that the main loop has no additional event source. The end of the input ends the
/// program.
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
