#pragma once

#include "loopback/LoopbackServer.h"

#include <QByteArray>

/// What a server may answer a request with, and should not.
namespace brellowind::test::hostile {

/// Of what arrives much too large.
inline constexpr qsizetype hundredMegabytes = 100'000'000;

/// A whole answer: status 200, `headers`, each ended by CR LF, and `body`; then the connection
/// ends.
void answer(const demo::Exchange& exchange, const QByteArray& headers, const QByteArray& body);

/// The same without ending the connection.
void begin(const demo::Exchange& exchange, const QByteArray& headers, const QByteArray& body = {});

/// Sends one byte after another, with a moment in between.
void drip(const demo::Exchange& exchange, char byte);

/// Sends `piece` again and again, as fast as it is taken, until that was a hundred megabytes.
void pour(const demo::Exchange& exchange, const QByteArray& piece);

/// Ends the connection so that what was sent may be lost on the way.
void reset(const demo::Exchange& exchange);

/// Leads elsewhere.
void redirect(const demo::Exchange& exchange, const QByteArray& location);

/// A hundred megabytes of spaces in the Brotli format, in 77 bytes.
QByteArray brotliBomb();

} // namespace brellowind::test::hostile
