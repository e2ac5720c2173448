#pragma once

#include "platform/LinkOpener.h"

#include <QByteArray>
#include <QDesktopServices>
#include <QUrl>

namespace brellowind::platform {

/// The desktop's own handlers of links.
class QtLinkOpener final : public LinkOpener {
public:
    bool open(std::string_view url) override {
        const QByteArray encoded(url.data(), static_cast<qsizetype>(url.size()));
        return QDesktopServices::openUrl(QUrl::fromEncoded(encoded));
    }
};

} // namespace brellowind::platform
