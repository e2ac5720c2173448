// SPDX-License-Identifier: MIT

#include "settings/window/SettingsWindow.h"

#include "settings/AppInfo.h"
#include "settings/window/SettingsModel.h"

#include <QColor>
#include <QIcon>
#include <QQuickItem>
#include <QQuickView>
#include <QSGRendererInterface>
#include <cmath>
#include <functional>
#include <utility>

void qml_register_types_Brellowind_Settings();

/// The linker drops the compiled QML from a static library that nothing refers to. A resource
/// cannot be initialised within a namespace.
static void registerCompiledQml() {
    Q_INIT_RESOURCE(qmlcache_brellowind_settings_window);
}

namespace brellowind {
namespace {

/// Call once: Qt never frees a registration, also a repeated one.
void prepareQtQuick() {
    static bool prepared = false;
    if (std::exchange(prepared, true))
        return;
    // Software rendering is enough for a small window and takes a third of the memory.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    qml_register_types_Brellowind_Settings();
    registerCompiledQml();
}

/// Gives the window the fixed size of its content.
void fitToContent(QQuickView& view) {
    const auto* root = view.rootObject();
    const QSize size(static_cast<int>(std::ceil(root->width())),
                     static_cast<int>(std::ceil(root->height())));
    view.setMinimumSize({});
    view.setMaximumSize(size);
    view.setMinimumSize(size);
    view.resize(size);
}

/// A view that reports when it was hidden.
class View final : public QQuickView {
public:
    explicit View(std::function<void()> hidden) : hidden_(std::move(hidden)) {}

protected:
    void hideEvent(QHideEvent* event) override {
        QQuickView::hideEvent(event);
        hidden_();
    }

private:
    std::function<void()> hidden_;
};

/// For desktops that do not find the icon by the name of the desktop file.
QIcon icon() {
    QIcon icon;
    for (const auto* size : {"32x32", "64x64"})
        icon.addFile(QStringLiteral(":/%1/org.brellowind.Brellowind.png").arg(QLatin1String(size)));
    return icon;
}

} // namespace

/// Members are destroyed in reverse order: the view before its models.
struct SettingsWindow::Content {
    Content(const SettingsServices& services, std::function<void()> hidden)
        : model(services), view(std::move(hidden)) {}

    SettingsModel model;
    View view;
};

SettingsWindow::SettingsWindow(const SettingsServices& services) : services_(services) {}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::open() {
    release_.reset();
    if (!content_)
        build();
    auto& [model, view] = *content_;
    model.refresh();
    model.setShown(true);
    view.setWindowStates(view.windowStates() & ~Qt::WindowMinimized);
    view.show();
    view.raise();
    view.requestActivate();
}

QQuickWindow* SettingsWindow::window() const {
    return content_ ? &content_->view : nullptr;
}

void SettingsWindow::build() {
    prepareQtQuick();
    content_ = std::make_unique<Content>(services_, [this] { closed(); });
    auto& [model, view] = *content_;
    view.setTitle(QString::fromUtf8(AppInfo::name));
    view.setIcon(icon());
    view.setFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                  Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    view.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}});
    view.setSource(QUrl(QStringLiteral("qrc:/Brellowind/Settings/SettingsView.qml")));

    auto* root = view.rootObject();
    view.setColor(root->property("color").value<QColor>());
    const auto fit = [&view = view] { fitToContent(view); };
    QObject::connect(root, &QQuickItem::widthChanged, &view, fit);
    QObject::connect(root, &QQuickItem::heightChanged, &view, fit);
    fit();
}

void SettingsWindow::closed() {
    content_->model.setShown(false);
    // The window is still handling the event; free it on the next turn.
    release_ = services_.mainLoop.scheduleOnce(std::chrono::milliseconds(0), [this] {
        content_.reset();
        release_.reset();
    });
}

} // namespace brellowind
