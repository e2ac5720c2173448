#pragma once

#include <QObject>
#include <QString>

class QQuickWindow;

namespace brellowind::test {

/// Tells on the session bus what the pill's items draw.
class PillObserver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brellowind.Pill")

public:
    /// `window` must outlive the observer and show the pill's items already.
    explicit PillObserver(const QQuickWindow& window);

    /// False when there is no bus or the pill has no line.
    bool listen();

public Q_SLOTS:
    Q_SCRIPTABLE QString Text() const;

Q_SIGNALS:
    Q_SCRIPTABLE void TextChanged(const QString& text);

private:
    QObject* line_;
};

} // namespace brellowind::test
