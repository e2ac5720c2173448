// SPDX-License-Identifier: MIT

#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class KdeInput;

/// KWin without the rest of Plasma, decorations and animations. One screen can be added. The
/// pointer is at whole points; the last screen can be neither switched off nor removed.
class KWin : public Compositor {
public:
    explicit KWin(const CompositorOptions& options);
    ~KWin() override;

    QImage screenshot(const QString& screen = {}) const override;
    void movePointerTo(QPointF place) override;
    void movePointerBy(QPointF distance) override;
    void button(int code, Stroke stroke) override;
    void key(int code, Stroke stroke) override;
    bool tap(QPointF place) override;
    QList<CompositorScreen> screens() const override;
    void setScale(double scale) override;
    QString addScreen() override;
    bool removeScreen(const QString& name) override;

private:
    bool setEnabled(const QString& name, bool isEnabled);

    std::unique_ptr<KdeInput> input_;
};

} // namespace brellowind::test
