#include "views/pill/PillMenu.h"

#include "views/NotchRootView.h"
#include "views/pill/PillMenuEntry.h"
#include "views/scene/Item.h"

#include <QPainter>
#include <utility>

namespace brellowind {
namespace {

constexpr int padding = 5;

/// The edge of the menu and what is behind its entries.
class MenuBackground final : public PainterItem {
public:
    MenuBackground(double radius, Item* parent) : PainterItem(parent), radius_(radius) {}

    void paint(QPainter& painter) override {
        painter.setPen(QColor::fromRgbF(1, 1, 1, 0.12F));
        painter.setBrush(QColor::fromRgbF(0.11F, 0.11F, 0.12F));
        painter.drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), radius_ - 0.5,
                                radius_ - 0.5);
    }

private:
    double radius_;
};

} // namespace

PillMenu::PillMenu(NotchRootView& view) {
    setObjectName(QStringLiteral("menu"));
    auto* background = new MenuBackground(radius(), &root());
    const std::pair<QString, void (NotchRootView::*)()> entries[] = {
        {tr("Open Settings"), &NotchRootView::openSettings},
        {tr("Check for Updates…"), &NotchRootView::checkForUpdates},
        {tr("Quit Brellowind"), &NotchRootView::quit},
    };
    double top = padding;
    for (const auto& [text, action] : entries) {
        auto* entry = new PillMenuEntry(text, &root());
        entry->setPosition({padding, top});
        top += entry->height();
        connect(entry, &PillMenuEntry::triggered, this, [this, &view, action = action] {
            close();
            (view.*action)();
        });
    }
    background->setSize({PillMenuEntry::entryWidth + 2 * padding, top + padding});
    resize(background->size().toSize());
}

} // namespace brellowind
