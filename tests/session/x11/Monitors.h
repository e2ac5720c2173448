#pragma once

#include <QRect>
#include <QStringList>
#include <utility>

namespace brellowind::test {

/// The monitors of an X server, as a user arranges them. When this goes, they are as they were.
class Monitors {
public:
    /// Of the server's own monitor, where a test changes that.
    static constexpr QSize initialSize{1280, 800};

    explicit Monitors(QString display) : display_(std::move(display)) {}
    Monitors(const Monitors&) = delete;
    Monitors& operator=(const Monitors&) = delete;
    ~Monitors();

    /// Makes a part of the X screen a monitor, the first one in place of the server's own.
    void add(const QString& name, const QRect& pixels, bool primary);
    void remove(const QString& name);

    bool has(const QString& name) const { return added_.contains(name); }

    /// Gives the server's own monitor another size, not larger than the initial one.
    void resize(QSize pixels);

    void switchOff();

private:
    void configure(const QStringList& arguments);

    QString display_;
    QStringList added_;
    bool reconfigured_ = false;
};

} // namespace brellowind::test
