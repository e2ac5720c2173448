// SPDX-License-Identifier: MIT

#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class Capsule;
class NotchRootView;
class TapArea;
struct PillContent;
struct PillMotion;

/// The handle at the lower edge of a hovered pill.
class Grabber : public Item {
    Q_OBJECT

public:
    Grabber(NotchRootView& view, const PillContent& content, Item* parent);

    /// Updates from the content.
    void refresh();

    void layOut(const PillMotion& motion);

private:
    const PillContent& content_;
    Capsule* capsule_;
    TapArea* area_;
};

} // namespace brellowind
