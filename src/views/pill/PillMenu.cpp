// SPDX-License-Identifier: MIT

#include "views/pill/PillMenu.h"

#include "views/NotchRootView.h"
#include "views/pill/PillMenuEntry.h"
#include "views/scene/Accessible.h"
#include "views/scene/Item.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>
#include <algorithm>
#include <iterator>
#include <utility>

namespace brellowind {
namespace {

constexpr int padding = 5;

/// The background and the border of the menu.
class MenuBackground final : public PainterItem {
public:
    using PainterItem::PainterItem;

    void paint(QPainter& painter) override {
        // The fill extends below the translucent border.
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor::fromRgbF(0.11F, 0.11F, 0.12F));
        painter.drawRoundedRect(boundingRect(), PillMenu::radius, PillMenu::radius);
        painter.setPen(QColor::fromRgbF(1, 1, 1, 0.12F));
        painter.setBrush(Qt::NoBrush);
        constexpr double radius = PillMenu::radius - 0.5;
        painter.drawRoundedRect(boundingRect().adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    }
};

} // namespace

PillMenu::PillMenu(NotchRootView& view) {
    setObjectName(QStringLiteral("menu"));
    auto* background = new MenuBackground(&root());
    std::vector<std::pair<QString, void (NotchRootView::*)()>> entries;
    entries.emplace_back(tr("Open Settings"), &NotchRootView::openSettings);
    if (view.checksForUpdates())
        entries.emplace_back(tr("Check for Updates…"), &NotchRootView::checkForUpdates);
    entries.emplace_back(tr("Quit Brellowind"), &NotchRootView::quit);
    double top = padding;
    for (const auto& [text, action] : entries) {
        auto* entry = new PillMenuEntry(text, &root());
        entry->setPosition({padding, top});
        top += entry->height();
        entries_.push_back(entry);
        connect(entry, &PillMenuEntry::hoveredChanged, this,
                [this, entry](bool hovered) { highlight(hovered ? entry : nullptr); });
        connect(entry, &PillMenuEntry::triggered, this, [this, &view, action = action] {
            (view.*
             action)(); // before closing, so that it counts as a user action for the window system
            close();
        });
    }
    background->setSize({PillMenuEntry::entryWidth + 2 * padding, top + padding});
    resize(background->size().toSize());
}

void PillMenu::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Down:
        highlightBeside(1);
        break;
    case Qt::Key_Up:
        highlightBeside(-1);
        break;
    case Qt::Key_Home:
        highlight(entries_.front());
        break;
    case Qt::Key_End:
        highlight(entries_.back());
        break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        if (highlighted_)
            Q_EMIT highlighted_->triggered();
        break;
    case Qt::Key_Escape:
        close();
        break;
    default:
        highlightNext(event->text());
    }
}

void PillMenu::mousePressEvent(QMouseEvent* event) {
    isPressed_ = true;
    SceneWindow::mousePressEvent(event);
}

void PillMenu::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        isPressed_ = false;
    else if (!isPressed_ && !dragBegan_)
        dragBegan_ = event->position();
    SceneWindow::mouseMoveEvent(event);
}

/// Releasing the button that opened the menu triggers the entry below, after a minimum drag
/// distance.
void PillMenu::mouseReleaseEvent(QMouseEvent* event) {
    const auto began = std::exchange(dragBegan_, std::nullopt);
    isPressed_ = false;
    SceneWindow::mouseReleaseEvent(event);
    const int farEnough = QGuiApplication::styleHints()->startDragDistance();
    if (began && highlighted_ && (event->position() - *began).manhattanLength() >= farEnough)
        Q_EMIT highlighted_->triggered();
}

void PillMenu::showEvent(QShowEvent* event) {
    SceneWindow::showEvent(event);
    announce(*this, QAccessible::PopupMenuStart);
}

void PillMenu::hideEvent(QHideEvent* event) {
    SceneWindow::hideEvent(event);
    announce(*this, QAccessible::PopupMenuEnd);
    highlight(nullptr);
    isPressed_ = false;
    dragBegan_.reset();
}

void PillMenu::highlight(PillMenuEntry* entry) {
    if (highlighted_)
        highlighted_->setHighlighted(false);
    highlighted_ = entry;
    if (highlighted_)
        highlighted_->setHighlighted(true);
}

/// Wraps around. Without a highlighted entry it starts at the first or last one.
void PillMenu::highlightBeside(int step) {
    const auto count = std::ssize(entries_);
    const auto at = std::ranges::find(entries_, highlighted_) - entries_.begin();
    const auto next = at == count ? (step > 0 ? 0 : count - 1) : (at + step + count) % count;
    highlight(entries_[static_cast<std::size_t>(next)]);
}

/// Highlights the next entry that begins with `letter`. Wraps around.
void PillMenu::highlightNext(const QString& letter) {
    const auto matches = [&](const PillMenuEntry* entry) {
        return !letter.isEmpty() && entry->text().startsWith(letter, Qt::CaseInsensitive);
    };
    auto from = std::ranges::find(entries_, highlighted_);
    if (from != entries_.end())
        ++from;
    auto found = std::find_if(from, entries_.end(), matches);
    if (found == entries_.end())
        found = std::ranges::find_if(entries_, matches);
    if (found != entries_.end())
        highlight(*found);
}

} // namespace brellowind
