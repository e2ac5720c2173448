#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace brellowind {

/// One of the program's own symbols, drawn as large as the item, sharp on every screen.
class Symbol : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    void paint(QPainter* painter) override;

    QString name() const { return name_; }
    void setName(const QString& name);

    QColor color() const { return color_; }
    void setColor(const QColor& color);

Q_SIGNALS:
    void nameChanged();
    void colorChanged();

private:
    QString name_;
    QColor color_;
};

} // namespace brellowind
