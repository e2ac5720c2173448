#pragma once

#include "platform/LinkOpener.h"
#include "platform/qt/QtStartEnvironment.h"

#include <QByteArray>
#include <QDesktopServices>
#include <QUrl>

namespace brellowind::platform {

/// The desktop's own handlers of links.
class QtLinkOpener final : public LinkOpener {
public:
    bool open(std::string_view url) override {
        QtStartEnvironment::takeBack(); // the program that opens it chooses for itself
        const QByteArray encoded(url.data(), static_cast<qsizetype>(url.size()));
        return QDesktopServices::openUrl(QUrl::fromEncoded(encoded));
    }
};

} // namespace brellowind::platform
