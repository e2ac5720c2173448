#include "views/NotchRootModel.h"

#include "views/NotchRootView.h"

namespace brellowind {

NotchRootModel::NotchRootModel(NotchRootView& view)
    : view_(view), redraws_(view.onRedraw([this] { redraw(); })) {
    redraw();
}

void NotchRootModel::redraw() {
    const auto text = view_.currentLineText();
    if (text == shownLineText_)
        return;
    shownLineText_ = text;
    currentLineText_ = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    Q_EMIT currentLineTextChanged();
}

} // namespace brellowind
