#pragma once

#include "views/scene/Item.h"

namespace brellowind {

class Capsule;
class NotchRootModel;
class TapArea;
struct PillMotion;

/// The handle at the lower edge of a pill that the pointer is over.
class Grabber : public Item {
    Q_OBJECT

public:
    Grabber(NotchRootModel& model, Item* parent);

    /// Shows what the model has now.
    void follow();

    void layOut(const PillMotion& motion);

private:
    NotchRootModel& model_;
    Capsule* capsule_;
    TapArea* area_;
};

} // namespace brellowind
