// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class WlrInput;

/// sway without user configuration, bar, borders and key bindings. No touch input; added screens
/// cannot be removed.
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
