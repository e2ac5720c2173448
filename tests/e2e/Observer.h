// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QRectF>
#include <QVariant>
#include <optional>

namespace brellowind::test {

/// A D-Bus proxy for an observer inside the program.
class Observer {
public:
    Observer(QDBusConnection bus, QString path, QString interface);

    /// Calls a method and returns the result. Fails the test without an answer.
    QVariant ask(const char* method, const QVariantList& arguments = {}) const;

    /// The rectangle of something; nullopt if it does not exist.
    std::optional<QRectF> rectangle(const char* method, const QVariantList& arguments) const;

private:
    QDBusConnection bus_;
    QString path_;
    QString interface_;
};

} // namespace brellowind::test
