#include "foundation/Path.h"

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

Path Path::mapped(const std::function<Point(Point)>& map) const {
    struct Mapper {
        void operator()(const Move& move) { path.move(map(move.to)); }
        void operator()(const Line& line) { path.line(map(line.to)); }
        void operator()(const QuadCurve& curve) {
            path.quadCurve(map(curve.to), map(curve.control));
        }
        void operator()(const Close&) { path.close(); }

        const std::function<Point(Point)>& map;
        Path path{};
    };
    Mapper mapper{map};
    for (const auto& element : elements_)
        std::visit(mapper, element);
    return mapper.path;
}

} // namespace brellowind
