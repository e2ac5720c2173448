#pragma once

#include <QByteArray>

namespace brellowind::test {

/// `body` as a gzip file.
QByteArray gzip(const QByteArray& body);

} // namespace brellowind::test
