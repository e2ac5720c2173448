// SPDX-License-Identifier: MIT

#pragma once

#include "loopback/LoopbackServer.h"

#include <QByteArray>

/// Malformed and malicious answers of a server.
namespace brellowind::test::hostile {

/// The size of oversized answers.
inline constexpr qsizetype hundredMegabytes = 100'000'000;

/// A whole answer: status 200, `headers`, each ended by CR LF, and `body`; then the connection
/// ends.
void answer(const demo::Exchange& exchange, const QByteArray& headers, const QByteArray& body);

/// The same without ending the connection.
void begin(const demo::Exchange& exchange, const QByteArray& headers, const QByteArray& body = {});

/// Sends the bytes one by one, with delays.
void drip(const demo::Exchange& exchange, char byte);

/// Sends `piece` repeatedly, as fast as it is read, up to 100 MB.
void pour(const demo::Exchange& exchange, const QByteArray& piece);

/// Resets the connection, which may discard sent data.
void reset(const demo::Exchange& exchange);

/// A redirect.
void redirect(const demo::Exchange& exchange, const QByteArray& location);

/// 100 MB of spaces, compressed with Brotli to 77 bytes.
QByteArray brotliBomb();

} // namespace brellowind::test::hostile
