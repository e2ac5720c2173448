// SPDX-License-Identifier: MIT

#include "platform/linux/XdgLinkOpener.h"

#include <QProcess>
#include <QUrl>
#include <utility>

namespace brellowind::platform {

XdgLinkOpener::XdgLinkOpener(QProcessEnvironment environment)
    : environment_(std::move(environment)) {}

bool XdgLinkOpener::open(std::string_view url) {
    const auto link = QUrl::fromEncoded(QByteArray(url.data(), static_cast<qsizetype>(url.size())));
    if (!link.isValid())
        return false;
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({QString::fromLatin1(link.toEncoded())});
    opener.setProcessEnvironment(environment_);
    return opener.startDetached();
}

} // namespace brellowind::platform
