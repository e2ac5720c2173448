// SPDX-License-Identifier: MIT

#pragma once

#include <QSslConfiguration>

namespace brellowind::test {

/// The TLS configuration of a server with a new self-signed certificate for 127.0.0.1. Fails the
/// test if it cannot be made.
QSslConfiguration selfSignedServer();

/// During its lifetime, new connections of this process trust the certificate in `server`.
class TrustedCertificate {
public:
    explicit TrustedCertificate(const QSslConfiguration& server);
    TrustedCertificate(const TrustedCertificate&) = delete;
    TrustedCertificate& operator=(const TrustedCertificate&) = delete;
    ~TrustedCertificate();

private:
    QSslConfiguration before_;
};

} // namespace brellowind::test
