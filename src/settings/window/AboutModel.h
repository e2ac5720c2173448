#pragma once

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
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(QString version READ version CONSTANT FINAL)
    Q_PROPERTY(QString description READ description CONSTANT FINAL)
    Q_PROPERTY(QString legalNotice READ legalNotice CONSTANT FINAL)

public:
    explicit AboutModel(const SettingsServices& services);

    QString name() const;
    QString version() const;
    QString description() const;
    QString legalNotice() const;

    // Each opens its page in the user's browser.
    Q_INVOKABLE void openWebsite() const;
    Q_INVOKABLE void openSocialProfile() const;
    Q_INVOKABLE void openPrivacyPolicy() const;
    Q_INVOKABLE void openTerms() const;

private:
    const platform::ProductConstants& constants_;
    platform::LinkOpener& links_;
};

} // namespace brellowind
