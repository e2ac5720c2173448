#pragma once

#include "e2e/PillFixture.h"

#include <QList>

namespace brellowind::test {

/// The release feed: what it answers, and how often it was asked.
class Feed {
public:
    /// The version of the program that is tested.
    static QString ownVersion();

    /// A feed that names a release.
    static QByteArray release(const QString& version, const QString& url);

    void answer(const demo::Exchange& exchange);

    /// Answers nothing from now on, until it is released.
    void hold() { held_ = true; }
    void release();

    int requests() const { return requests_; }

    /// What it answers with; at first, that this version is the newest.
    QByteArray body = release(ownVersion(), QStringLiteral("https://downloads.invalid/"));
    int status = 200;

private:
    int requests_ = 0;
    bool held_ = false;
    QList<demo::Exchange> waiting_;
};

/// The program on a desktop with a window manager, with a feed of the test's own, and a person who
/// uses its settings window.
class ShellOnDesktop : public PillOnDesktop {
protected:
    ShellOnDesktop();

    const ObservedSettings& settings() { return program->settings(); }

    /// Starts the program and opens its settings from the pill's menu.
    void startWithSettings();

    /// Waits until the settings window is on the screen and has the keyboard.
    bool settingsAreInFront();

    /// Waits until the program holds no settings window any more.
    bool settingsAreGone();

    /// Presses an element of the settings window.
    void press(const char* element);

    /// Waits until the feed has been asked so often.
    bool checksBecome(int count);

    Feed feed;
};

} // namespace brellowind::test
