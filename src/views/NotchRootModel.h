#pragma once

#include "foundation/Observers.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <string>

namespace brellowind {

class NotchRootView;

/// What QML draws the pill from. A property notifies only when it really differs.
class NotchRootModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the notch window")
    Q_PROPERTY(QString currentLineText READ currentLineText NOTIFY currentLineTextChanged)

public:
    /// `view` must outlive the model.
    explicit NotchRootModel(NotchRootView& view);

    QString currentLineText() const { return currentLineText_; }

Q_SIGNALS:
    void currentLineTextChanged();

private:
    void redraw();

    NotchRootView& view_;
    std::string shownLineText_;
    QString currentLineText_;
    Subscription redraws_;
};

} // namespace brellowind
