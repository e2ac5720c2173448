// SPDX-License-Identifier: MIT

#include "platform/qt/QtLocalFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace brellowind::platform {

std::optional<std::string> QtLocalFiles::read(std::string_view url, std::size_t maximumBytes) {
    const QByteArray encoded(url.data(), static_cast<qsizetype>(url.size()));
    const QString path = QUrl::fromEncoded(encoded).toLocalFile();
    if (!QFileInfo(path).isFile()) // reading a pipe or a device might block
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray contents = file.read(static_cast<qint64>(maximumBytes) + 1);
    if (static_cast<std::size_t>(contents.size()) > maximumBytes)
        return std::nullopt;
    return contents.toStdString();
}

} // namespace brellowind::platform
