#pragma once

#include "desktops/Compositor.h"

#include <memory>

namespace brellowind::test {

class KdeInput;

/// KWin without the rest of Plasma, window decorations and animations. It has one screen to add.
/// Its pointer stands on whole points, and its last screen can neither be switched off nor go.
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
