// SPDX-License-Identifier: MIT

#pragma once

#include "settings/AppInfo.h"
#include "settings/SettingsServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// The QML model of the About tab. Constant.
class AboutModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the settings window")
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString version MEMBER version CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString legalNotice MEMBER legalNotice CONSTANT FINAL)
    Q_PROPERTY(QString websiteURL MEMBER websiteURL CONSTANT FINAL)
    Q_PROPERTY(QString socialURL MEMBER socialURL CONSTANT FINAL)
    Q_PROPERTY(QString privacyPolicyURL MEMBER privacyPolicyURL CONSTANT FINAL)
    Q_PROPERTY(QString termsURL MEMBER termsURL CONSTANT FINAL)

public:
    explicit AboutModel(const SettingsServices& services)
        : AboutModel(services.constants, services.links) {}

    const QString name = QString::fromUtf8(AppInfo::name);
    const QString version;
    const QString description = QString::fromUtf8(AppInfo::description);
    const QString legalNotice;

    // Empty if there is no such page.
    const QString websiteURL;
    const QString socialURL;
    const QString privacyPolicyURL;
    const QString termsURL;

    /// Opens a page in the user's browser.
    Q_INVOKABLE void open(const QString& url) const { links_.open(url.toStdString()); }

private:
    AboutModel(const platform::ProductConstants& constants, platform::LinkOpener& links)
        : version(QString::fromStdString(AppInfo::version(constants.version))),
          legalNotice(QString::fromStdString(constants.legalNotice)),
          websiteURL(QString::fromStdString(constants.websiteURL)),
          socialURL(QString::fromStdString(constants.socialURL)),
          privacyPolicyURL(QString::fromStdString(constants.privacyPolicyURL)),
          termsURL(QString::fromStdString(constants.termsURL)), links_(links) {}

    platform::LinkOpener& links_;
};

} // namespace brellowind
