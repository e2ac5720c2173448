// SPDX-License-Identifier: MIT

#pragma once

#include <QRect>
#include <QStringList>
#include <utility>

namespace brellowind::test {

/// Arranges the monitors of an X server. The destructor restores them.
class Monitors {
public:
    /// The name of the server's own monitor.
    static constexpr QSize initialSize{1280, 800};

    explicit Monitors(QString display) : display_(std::move(display)) {}
    Monitors(const Monitors&) = delete;
    Monitors& operator=(const Monitors&) = delete;
    ~Monitors();

    /// Makes a part of the X screen a monitor. The first one replaces the server's own.
    void add(const QString& name, const QRect& pixels, bool primary);
    void remove(const QString& name);

    bool has(const QString& name) const { return added_.contains(name); }

    /// Resizes the server's own monitor, up to its initial size.
    void resize(QSize pixels);

    void switchOff();

private:
    void configure(const QStringList& arguments);

    QString display_;
    QStringList added_;
    bool reconfigured_ = false;
};

} // namespace brellowind::test
