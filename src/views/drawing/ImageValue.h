#pragma once

#include <QImage>
#include <QtQml/qqml.h>

namespace brellowind {

/// Lets QML hand images from one object to another.
struct ImageValue {
    Q_GADGET
    QML_FOREIGN(QImage)
    QML_VALUE_TYPE(image)
};

} // namespace brellowind
