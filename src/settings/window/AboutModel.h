#pragma once

#include "settings/AppInfo.h"
#include "settings/SettingsServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// What QML draws the About tab from. Nothing here ever changes.
class AboutModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the settings window")
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString version MEMBER version CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString legalNotice MEMBER legalNotice CONSTANT FINAL)

public:
    explicit AboutModel(const SettingsServices& services)
        : version(QString::fromStdString(AppInfo::version(services.constants.version))),
          legalNotice(QString::fromStdString(services.constants.legalNotice)),
          constants_(services.constants), links_(services.links) {}

    const QString name = QString::fromUtf8(AppInfo::name);
    const QString version;
    const QString description = QString::fromUtf8(AppInfo::description);
    const QString legalNotice;

    // Each opens its page in the user's browser.
    Q_INVOKABLE void openWebsite() const { links_.open(constants_.websiteURL); }
    Q_INVOKABLE void openSocialProfile() const { links_.open(constants_.socialURL); }
    Q_INVOKABLE void openPrivacyPolicy() const { links_.open(constants_.privacyPolicyURL); }
    Q_INVOKABLE void openTerms() const { links_.open(constants_.termsURL); }

private:
    const platform::ProductConstants& constants_;
    platform::LinkOpener& links_;
};

} // namespace brellowind
