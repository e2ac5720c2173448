#pragma once

#include <QRect>
#include <QStringList>

namespace brellowind::test {

/// The monitors of the X server that this process is a client of. When this goes, they are as they
/// were.
class Monitors {
public:
    /// Of the server's own monitor.
    static constexpr QSize initialSize{1280, 800};

    Monitors() = default;
    Monitors(const Monitors&) = delete;
    Monitors& operator=(const Monitors&) = delete;
    ~Monitors();

    /// Makes a part of the X screen a monitor, the first one in place of the server's own.
    void add(const QString& name, const QRect& pixels, bool primary);
    void remove(const QString& name);

    /// Gives the server's own monitor another size, not larger than the initial one.
    void resize(QSize pixels);

    void switchOff();

private:
    void configure(const QStringList& arguments);

    QStringList added_;
    bool reconfigured_ = false;
};

} // namespace brellowind::test
