// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "platform/MainLoop.h"
#include "settings/GeneralSettings.h"
#include "settings/UpdateCard.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <memory>
#include <string>
#include <vector>

namespace brellowind {

/// The QML model of the General tab, including its update card. Refreshes on the next turn of the
/// main loop after a change, and notifies only if values differ.
class GeneralModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the settings window")
    Q_PROPERTY(bool acceptsFeedback MEMBER acceptsFeedback CONSTANT FINAL)
    Q_PROPERTY(bool checksForUpdates MEMBER checksForUpdates CONSTANT FINAL)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin NOTIFY launchAtLoginChanged FINAL)
    Q_PROPERTY(QString launchAtLoginError READ launchAtLoginError NOTIFY launchAtLoginErrorChanged
                   FINAL)
    Q_PROPERTY(QString cardIcon READ cardIcon NOTIFY cardChanged FINAL)
    Q_PROPERTY(int cardColor READ cardColor NOTIFY cardChanged FINAL)
    Q_PROPERTY(double cardTintOpacity READ cardTintOpacity NOTIFY cardChanged FINAL)
    Q_PROPERTY(QString cardTitle READ cardTitle NOTIFY cardChanged FINAL)
    Q_PROPERTY(QString cardButton READ cardButton NOTIFY cardChanged FINAL)
    Q_PROPERTY(bool cardButtonEnabled READ cardButtonEnabled NOTIFY cardChanged FINAL)
    Q_PROPERTY(QString cardVersion READ cardVersion NOTIFY cardChanged FINAL)

public:
    explicit GeneralModel(const SettingsServices& services);

    // Whether a feedback address is configured.
    const bool acceptsFeedback;
    const bool checksForUpdates;

    /// Call when the tab is shown. Starts an update check.
    void appear() { settings_.appear(); }

    /// Call when the tab is hidden or closed. Cancels the check that `appear` started.
    void disappear() { settings_.disappear(); }

    /// Updates from the published properties at once.
    void refresh();

    bool launchAtLogin() const { return launchAtLogin_; }
    QString launchAtLoginError() const { return QString::fromStdString(launchAtLoginError_); }
    QString cardIcon() const { return QString::fromUtf8(card_.icon); }
    int cardColor() const { return static_cast<int>(card_.color); } ///< an `UpdateCard::Color`
    double cardTintOpacity() const { return card_.tintOpacity; }
    QString cardTitle() const { return QString::fromUtf8(card_.title); }
    QString cardButton() const { return QString::fromUtf8(card_.buttonLabel); }
    bool cardButtonEnabled() const { return card_.buttonEnabled(); }
    QString cardVersion() const { return QString::fromStdString(card_.versionText); }

    Q_INVOKABLE void setLaunchAtLogin(bool enabled) { settings_.setLaunchAtLogin(enabled); }
    Q_INVOKABLE void pressUpdateButton() { settings_.pressUpdateButton(); }
    Q_INVOKABLE void sendFeedback() const { settings_.sendFeedback(); }
    Q_INVOKABLE void quit() { settings_.quit(); }

Q_SIGNALS:
    void launchAtLoginChanged();
    void launchAtLoginErrorChanged();
    void cardChanged();

private:
    UpdateCard publishedCard() const;

    UpdateChecker& updater_;
    GeneralSettings settings_;
    bool launchAtLogin_;
    std::string launchAtLoginError_;
    UpdateCard card_;
    std::unique_ptr<platform::NextTurn> nextTurn_;
    std::vector<Subscription> subscriptions_;
};

} // namespace brellowind
