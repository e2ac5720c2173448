#include "notch/Path.h"

namespace brellowind {

void Path::move(Point to) {
    elements_.emplace_back(Move{to});
}

void Path::line(Point to) {
    elements_.emplace_back(Line{to});
}

void Path::quadCurve(Point to, Point control) {
    elements_.emplace_back(QuadCurve{to, control});
}

void Path::close() {
    elements_.emplace_back(Close{});
}

} // namespace brellowind
