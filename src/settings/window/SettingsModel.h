// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Observers.h"
#include "platform/MainLoop.h"
#include "settings/SettingsRouter.h"
#include "settings/window/AboutModel.h"
#include "settings/window/GeneralModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace brellowind {

/// The QML model of the settings window. Synchronises the selected tab with the router, and
/// notifies the General tab when it appears and disappears.
class SettingsModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the settings window")
    Q_PROPERTY(Tab tab READ tab NOTIFY tabChanged FINAL)
    Q_PROPERTY(brellowind::GeneralModel* general READ general CONSTANT FINAL)
    Q_PROPERTY(brellowind::AboutModel* about READ about CONSTANT FINAL)

public:
    enum Tab { General, About };
    Q_ENUM(Tab)

    explicit SettingsModel(const SettingsServices& services);
    ~SettingsModel() override;

    /// Whether the window, and so its selected tab, is visible.
    void setShown(bool shown);

    /// Updates from the published properties at once.
    void refresh();

    Tab tab() const { return tab_; }
    GeneralModel* general() { return &general_; }
    AboutModel* about() { return &about_; }

    Q_INVOKABLE void selectTab(brellowind::SettingsModel::Tab tab);

Q_SIGNALS:
    void tabChanged();

private:
    Tab routedTab() const;
    void updateAppearance();

    SettingsRouter& router_;
    GeneralModel general_;
    AboutModel about_;
    Tab tab_;
    bool shown_ = false;
    bool generalAppears_ = false;
    std::unique_ptr<platform::NextTurn> nextTurn_;
    Subscription selectedTab_;
};

} // namespace brellowind
