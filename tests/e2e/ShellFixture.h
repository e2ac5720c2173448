// SPDX-License-Identifier: MIT

#pragma once

#include "e2e/PillFixture.h"

namespace brellowind::test {

/// The release feed: its answers, and the number of requests.
class Feed {
public:
    /// The version of the program that is tested.
    static QString ownVersion();

    /// A feed with a release.
    static QByteArray release(const QString& version, const QString& url);

    void answer(const demo::Exchange& exchange);

    /// Leaves all requests from now on unanswered.
    void hold() { held_ = true; }

    int requests() const { return requests_; }

    /// The answer; initially this version is the newest.
    QByteArray body = release(ownVersion(), QStringLiteral("https://downloads.invalid/"));
    int status = 200;

private:
    int requests_ = 0;
    bool held_ = false;
};

/// The program on a desktop with a window manager and a feed, and a simulated user of its settings.
class ShellOnDesktop : public PillOnDesktop {
protected:
    ShellOnDesktop();

    const ObservedSettings& settings() { return program->settings(); }

    /// Starts the program and opens its settings from the pill's menu.
    void startWithSettings();

    /// Waits until the settings window is visible and focused.
    bool settingsAreInFront();

    /// Waits until the settings window is destroyed.
    bool settingsAreGone();

    /// Clicks an element of the settings window.
    void press(const char* element);

    /// Waits until the feed has received this many requests.
    bool checksBecome(int count);

    Feed feed;
};

} // namespace brellowind::test
