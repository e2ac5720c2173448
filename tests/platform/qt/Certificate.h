#pragma once

#include <QSslConfiguration>

namespace brellowind::test {

/// A certificate of its own for 127.0.0.1, made now, with its key: what a server with it needs.
/// Nobody trusts it. Fails the running test when it cannot be made.
QSslConfiguration selfSignedServer();

/// Lets every connection of this process that begins in its scope trust the certificate in
/// `server`.
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
