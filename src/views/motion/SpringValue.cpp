#include "views/motion/SpringValue.h"

#include "views/motion/Springs.h"

#include <utility>

namespace brellowind {
namespace {

constexpr double tolerance = 0.05; ///< points that no eye sees

SpringParameters parameters(SpringValue::Kind kind) {
    switch (kind) {
    case SpringValue::Hover:
        return springs::hoverSpring;
    case SpringValue::Morph:
        return springs::morph;
    case SpringValue::PulseRise:
        return springs::pulseRise;
    case SpringValue::PulseFall:
        return springs::pulseFall;
    }
    return springs::morph;
}

} // namespace

SpringValue::SpringValue(QObject* parent) : QObject(parent), motion_(parameters(kind_), 0) {}

SpringValue::~SpringValue() {
    FrameDriver::shared().forget(*this);
}

void SpringValue::setTarget(double target) {
    if (target == target_)
        return;
    target_ = target;
    retarget();
    Q_EMIT targetChanged();
}

void SpringValue::setSpring(Kind kind) {
    if (kind == kind_)
        return;
    kind_ = kind;
    retarget();
    Q_EMIT springChanged();
}

void SpringValue::componentComplete() {
    complete_ = true;
    motion_ = Spring(parameters(kind_), target_);
    setValue(target_);
}

/// Target and spring may change together, one after the other: the frame sees both.
void SpringValue::retarget() {
    if (!complete_ || std::exchange(changed_, true))
        return;
    FrameDriver::shared().drive(*this);
}

std::optional<double> SpringValue::advance(double now) {
    if (std::exchange(changed_, false))
        motion_.retarget(target_, now, parameters(kind_));
    const bool settled = motion_.isSettled(now, tolerance / reach_);
    setValue(settled ? target_ : motion_.value(now));
    if (settled && !changed_)
        return std::nullopt;
    return reach_ * motion_.speed(now);
}

void SpringValue::setValue(double value) {
    if (value == value_)
        return;
    value_ = value;
    Q_EMIT valueChanged();
}

} // namespace brellowind
