// SPDX-License-Identifier: MIT

#include "platform/qt/Certificate.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace brellowind::test {
namespace {

QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return file.readAll();
}

} // namespace

QSslConfiguration selfSignedServer() {
    const QTemporaryDir folder;
    const QString key = folder.filePath(QStringLiteral("key.pem"));
    const QString certificate = folder.filePath(QStringLiteral("certificate.pem"));
    QProcess openssl;
    openssl.start(QStringLiteral("openssl"),
                  {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-nodes"),
                   QStringLiteral("-newkey"), QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
                   QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-days"),
                   QStringLiteral("2"), QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1"),
                   QStringLiteral("-addext"), QStringLiteral("subjectAltName=IP:127.0.0.1"),
                   QStringLiteral("-keyout"), key, QStringLiteral("-out"), certificate});
    EXPECT_TRUE(openssl.waitForFinished());
    EXPECT_EQ(openssl.exitCode(), 0) << openssl.readAllStandardError().constData();

    auto server = QSslConfiguration::defaultConfiguration();
    server.setLocalCertificate(QSslCertificate(contents(certificate)));
    server.setPrivateKey(QSslKey(contents(key), QSsl::Ec));
    EXPECT_FALSE(server.localCertificate().isNull());
    EXPECT_FALSE(server.privateKey().isNull());
    return server;
}

TrustedCertificate::TrustedCertificate(const QSslConfiguration& server)
    : before_(QSslConfiguration::defaultConfiguration()) {
    auto trusting = before_;
    trusting.addCaCertificate(server.localCertificate());
    QSslConfiguration::setDefaultConfiguration(trusting);
}

TrustedCertificate::~TrustedCertificate() {
    QSslConfiguration::setDefaultConfiguration(before_);
}

} // namespace brellowind::test
