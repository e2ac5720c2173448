#pragma once

#include "views/NotchRootModel.h"

#include <QQuickView>

namespace brellowind {

/// The window that hangs from the top edge of the screen and draws the pill.
class NotchQuickView : public QQuickView {
    Q_OBJECT

public:
    /// `rootView` must outlive the window.
    explicit NotchQuickView(NotchRootView& rootView);

private:
    NotchRootModel* model_; ///< a child: it goes after the items that draw from it
};

} // namespace brellowind
