#pragma once

#include <QDBusConnection>
#include <QRectF>
#include <QVariant>
#include <optional>

namespace brellowind::test {

/// What watches one part of the program from within, as the test reaches it over the bus.
class Observer {
public:
    Observer(QDBusConnection bus, QString path, QString interface);

    /// Its answer to a question. Fails the running test when there is none.
    QVariant ask(const char* method, const QVariantList& arguments = {}) const;

    /// Where something is; nothing when it is not there.
    std::optional<QRectF> rectangle(const char* method, const QVariantList& arguments) const;

private:
    QDBusConnection bus_;
    QString path_;
    QString interface_;
};

} // namespace brellowind::test
