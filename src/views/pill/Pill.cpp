// SPDX-License-Identifier: MIT

#include "views/pill/Pill.h"

#include "views/drawing/LyricText.h"
#include "views/drawing/PillShape.h"
#include "views/pill/Fade.h"
#include "views/pill/FloatingArtwork.h"
#include "views/pill/Grabber.h"
#include "views/pill/PillMenu.h"
#include "views/pill/Style.h"
#include "views/pill/Waveform.h"
#include "views/scene/TapArea.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brellowind {
namespace {

constexpr double hoverScale = 0.03;

template <typename Item>
Item* named(Item* item, const char* name) {
    item->setObjectName(QString::fromLatin1(name));
    return item;
}

/// Its room is small until the window has a size, so that an endless line makes no endless pill.
LyricText::Style lineStyle() {
    return {style::font(13, QFont::Medium), style::text, style::minimumContentWidth};
}

LyricText::Style panelLineStyle() {
    return {style::font(15, QFont::DemiBold), style::text, style::artworkSide};
}

void centre(Item& item, double width) {
    item.setX((width - item.width()) / 2);
}

} // namespace

Pill::Pill(NotchRootView& view, FrameDriver& frames, platform::WindowSystem& windowSystem,
           Item* parent)
    : Item(parent), view_(view), frames_(frames), windowSystem_(windowSystem), content_(view),
      shape_(named(new PillShape(this), "pill")),
      background_(new TapArea(QAccessible::StaticText, this)), inside_(new Item(this)),
      line_(named(
          new LyricText(lineStyle(), content_.line, !content_.form.isMinimized, frames, inside_),
          "lyricLine")),
      artwork_(named(new FloatingArtwork(view, content_, frames, this), "artwork")),
      waveform_(named(new Waveform(view, content_, this), "waveform")),
      grabber_(named(new Grabber(view, content_, this), "grabber")),
      motion_(content_, line_->width()), redraws_(view.onRedraw([this] { redraw(); })) {
    setObjectName(QStringLiteral("notch"));
    setTransformOrigin(Top);
    inside_->setClip(true);
    line_->glideWithin([&view] { return view.timeUntilNextLine(); });
    background_->acceptRightButton();
    connect(background_, &TapArea::tapped, this, &Pill::tapBackground);
    connect(background_, &TapArea::menuRequested, this, &Pill::openMenu);
    refresh();
}

Pill::~Pill() {
    frames_.forget(*this);
}

void Pill::openMenu(QPointF position) {
    if (!menu_)
        menu_ = std::make_unique<PillMenu>(view_);
    windowSystem_.popUp({.window = *menu_,
                         .overlay = *window(),
                         .at = {position.x(), position.y()},
                         .cornerRadius = PillMenu::radius});
}

void Pill::fill(QSizeF size) {
    setSize(size);
    line_->setRoom(lineRoom());
    refresh();
}

std::vector<Rect> Pill::inputRects() const {
    const auto inWindow = [](const Item& item) {
        const QRectF rect = item.mapRectToScene(item.boundingRect());
        return Rect{rect.x(), rect.y(), rect.width(), rect.height()};
    };
    std::vector<Rect> rects{inWindow(*shape_)};
    for (const auto* area : findChildren<TapArea*>())
        if (area->isVisible() && area->isEnabled())
            rects.push_back(inWindow(*area));
    return rects;
}

std::optional<double> Pill::advance(double now) {
    const auto speed = motion_.advance(now);
    updatePanel();
    layOut();
    return speed;
}

void Pill::redraw() {
    if (content_.update(view_))
        refresh();
}

void Pill::refresh() {
    line_->setText(content_.line);
    line_->setPresent(!content_.form.isMinimized);
    line_->setHeld(isLineHeld());
    background_->setName(content_.line);
    updatePanel();
    artwork_->refresh();
    waveform_->refresh();
    grabber_->refresh();
    motion_.setTargets(content_, line_->width());
    if (motion_.isMoving())
        frames_.drive(*this);
    layOut();
}

void Pill::updatePanel() {
    if (!content_.form.isArtExpanded && motion_.expand.value() == 0) {
        delete std::exchange(panelLine_, nullptr);
        return;
    }
    if (!panelLine_) {
        panelLine_ = named(new LyricText(panelLineStyle(), content_.line, true, frames_, inside_),
                           "panelLine");
        panelLine_->glideWithin([this] { return view_.timeUntilNextLine(); });
    }
    panelLine_->setText(content_.line);
    panelLine_->setHeld(isLineHeld());
}

/// While the player is paused, a line with a successor does not scroll.
bool Pill::isLineHeld() const {
    return !content_.isPlaying && view_.timeUntilNextLine();
}

void Pill::tapBackground() {
    if (content_.form.isArtExpanded)
        view_.tapArtwork();
    else
        view_.tapBackground();
}

void Pill::layOut() {
    const double expand = motion_.expand.value();
    setScale((1 + hoverScale * motion_.hover.value()) * motion_.pulse.value());

    shape_->setSize(
        {style::mix(motion_.lineWidth.value() + 2 * style::sidePadding, style::panelWidth, expand),
         style::swell(collapsedHeight(), panelHeight(), expand)});
    shape_->setLift(motion_.hover.value());
    centre(*shape_, width());
    view_.sizeChanged({shape_->width(), shape_->height()});
    background_->setPosition(shape_->position());
    background_->setSize({shape_->width(), backgroundHeight()});

    layOutTexts();
    artwork_->layOut(motion_, shape_->x());
    waveform_->layOut(motion_);
    waveform_->setPosition({shape_->x() + shape_->width() - waveform_->width() -
                                style::mix(style::sidePadding, style::panelSidePadding, expand),
                            style::mix(style::topPadding, style::panelTopPadding, expand) +
                                (style::bandHeight - waveform_->height()) / 2});
    grabber_->layOut(motion_);
    centre(*grabber_, width());
    grabber_->setY(shape_->height() - grabber_->height() -
                   style::mix(bottomPadding(), style::panelBottomPadding, expand));
    layOutPanelLine();
}

/// Clips texts to the pill's straight sides, between the flares, and its bottom.
void Pill::layOutTexts() {
    const double expand = motion_.expand.value();
    const double margin = shape_->flare() + 1;
    inside_->setPosition({shape_->x() + margin, 0});
    inside_->setSize({shape_->width() - 2 * margin, shape_->height() - 1});

    fade(*line_, 1 - 2.5 * expand); // invisible before the artwork appears
    line_->setY(style::topPadding + style::bandHeight + style::spacing);
    centre(*line_, inside_->width());
}

/// Centres the line between artwork and grabber; invisible while there is too little room.
void Pill::layOutPanelLine() {
    if (!panelLine_)
        return;
    constexpr double roomy = 0.7; // of the way to the panel
    fade(*panelLine_, (motion_.expand.value() - roomy) / (1 - roomy));
    const double top = artwork_->y() + artwork_->height();
    panelLine_->setY((top + grabber_->y() - panelLine_->height()) / 2);
    centre(*panelLine_, inside_->width());
}

/// The area of the closing panel is not tappable.
double Pill::backgroundHeight() const {
    return content_.form.isArtExpanded ? shape_->height()
                                       : std::min(shape_->height(), collapsedHeight());
}

/// The width at which the pill fits its window also while lifted and pulsing.
double Pill::lineRoom() const {
    const double widest = width() / ((1 + hoverScale) * PillMotion::pulseScale);
    return std::max(style::minimumContentWidth,
                    2 * std::floor((widest - 2 * style::sidePadding) / 2));
}

double Pill::bottomPadding() const {
    return style::mix(style::minimizedBottomPadding, style::bottomPadding, motion_.unfold.value());
}

double Pill::collapsedHeight() const {
    return style::topPadding + style::bandHeight +
           motion_.unfold.value() * (style::spacing + line_->height()) +
           motion_.hover.value() * (style::spacing + style::grabberPadding + style::grabberHeight) +
           bottomPadding();
}

double Pill::panelHeight() const {
    const double lineHeight = panelLine_ ? panelLine_->height() : 0;
    return style::panelTopPadding + style::bandHeight + style::panelSpacing + style::artworkSide +
           style::panelSpacing + lineHeight + style::panelSpacing + style::grabberPadding +
           style::grabberHeight + style::panelBottomPadding;
}

} // namespace brellowind
