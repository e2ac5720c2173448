#pragma once

#include "foundation/Spring.h"
#include "views/motion/FrameDriver.h"

#include <QObject>
#include <QQmlParserStatus>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// A number that follows its target on a spring. A new target keeps the present value and velocity.
/// What is set before the component is complete takes effect at once.
class SpringValue : public QObject, public QQmlParserStatus, private Animated {
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged REQUIRED)
    Q_PROPERTY(Kind spring READ spring WRITE setSpring NOTIFY springChanged REQUIRED)
    /// The points that something moves by while the value changes by 1.
    Q_PROPERTY(double reach MEMBER reach_)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)

public:
    enum Kind { Hover, Morph, PulseRise, PulseFall };
    Q_ENUM(Kind)

    explicit SpringValue(QObject* parent = nullptr);
    ~SpringValue() override;

    double target() const { return target_; }
    void setTarget(double target);

    Kind spring() const { return kind_; }
    void setSpring(Kind kind);

    double value() const { return value_; }

    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void targetChanged();
    void springChanged();
    void valueChanged();

private:
    std::optional<double> advance(double now) override;
    void retarget();
    void setValue(double value);

    Kind kind_ = Morph;
    double target_ = 0;
    double value_ = 0;
    double reach_ = 500; ///< of what nobody measured
    Spring motion_;
    bool complete_ = false;
    bool changed_ = false; ///< the motion takes the new target and spring with the next frame
};

} // namespace brellowind
