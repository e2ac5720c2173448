#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class WlrInput;

/// sway without a configuration of its user, bar, borders or key bindings. Nobody can touch its
/// screens, and the ones that are added stay.
class Sway : public Compositor {
public:
    explicit Sway(const CompositorOptions& options);
    ~Sway() override;

    QImage screenshot(const QString& screen = {}) const override;
    void movePointerTo(QPointF place) override;
    void movePointerBy(QPointF distance) override;
    void button(int code, Stroke stroke) override;
    void key(int code, Stroke stroke) override;
    QList<CompositorScreen> screens() const override;
    void setScale(double scale) override;
    bool setScreensOn(bool on) override;
    QString addScreen() override;

private:
    QByteArray message(const QStringList& arguments) const;

    std::unique_ptr<WlrInput> input_;
};

} // namespace brellowind::test
