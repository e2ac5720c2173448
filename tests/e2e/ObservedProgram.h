#pragma once

#include "companion/Companion.h"
#include "session/Desktop.h"

#include <QDBusMessage>
#include <QObject>
#include <QRectF>
#include <QStringList>
#include <QVariant>

namespace brellowind::test {

/// The program, running, and what its pill shows.
class ObservedProgram : public QObject {
    Q_OBJECT

public:
    /// Runs it on `desktop` with the lyrics service at `lyricsOrigin` and with `more` in its
    /// environment. Fails the running test when no pill appears.
    ObservedProgram(const Desktop& desktop, const QString& lyricsOrigin,
                    const QProcessEnvironment& more = {});

    /// The text that the pill's line shows at this moment.
    QString text() const { return texts_.isEmpty() ? QString() : texts_.constLast(); }

    /// Every text that it has shown, in order.
    QStringList texts() const { return texts_; }

    /// Forgets the texts before the one that it shows.
    void forgetEarlierTexts() { texts_ = {text()}; }

    /// Waits until the pill shows `text`.
    bool shows(const QString& text);

    /// What the pill is drawn from, such as "isMinimized".
    bool is(const char* form) { return ask("Form", {latin1(form)}).toBool(); }

    /// Waits until that is `value`.
    bool becomes(const char* form, bool value = true);

    /// A property of one of the pill's items.
    QVariant property(const char* item, const char* name) {
        return ask("Property", {latin1(item), latin1(name)});
    }

    /// Where an item is drawn in the window, in points.
    QRectF rectangle(const char* item) { return rect("Rectangle", latin1(item)); }

    /// The size of the pill as it is laid out, without what scales it.
    QSizeF pillSize() {
        return {property("pill", "width").toDouble(), property("pill", "height").toDouble()};
    }

    /// Waits until the pill's size has not changed for a while. False when it never rests.
    bool comesToRest();

    /// The native window, and that of the context menu, which is 0 while it is closed.
    quint32 window() { return ask("Window").toUInt(); }
    quint32 menu() { return ask("Menu").toUInt(); }

    /// Where an entry of the context menu is in the menu's window, in points.
    QRectF menuEntry(const char* text) { return rect("MenuEntry", QString::fromUtf8(text)); }

    demo::Companion& process() { return process_; }

private:
    static QString latin1(const char* text) { return QString::fromLatin1(text); }

    Q_SLOT void textChanged(const QString& text);

    /// Asks the observer within the program; fails the running test without an answer.
    QVariant ask(const char* method, const QVariantList& arguments = {});
    QRectF rect(const char* method, const QString& argument);

    QDBusConnection bus_;
    demo::Companion process_;
    QStringList texts_;
};

} // namespace brellowind::test
