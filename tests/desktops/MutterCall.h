// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/UserSession.h"

#include <QVariantList>

namespace brellowind::test {

/// Calls a method of an object of mutter's and returns its first result. Throws a DesktopFailure if
/// the call fails. `interface` is the part after "org.gnome.Mutter.".
QVariant callMutter(const UserSession& session, const QString& object, const QString& interface,
                    const char* method, const QVariantList& arguments = {});

/// The root object of an interface.
QString mutterObject(const QString& interface);

/// A property of an object of mutter's.
QVariant mutterProperty(const UserSession& session, const QString& object, const QString& interface,
                        const char* name);

} // namespace brellowind::test
