#pragma once

#include "e2e/ObservedSettings.h"
#include "e2e/Observer.h"
#include "e2e/ProgramSession.h"

#include <QObject>
#include <QRectF>
#include <QStringList>
#include <QVariant>
#include <chrono>
#include <memory>

namespace brellowind::test {

/// The program, running, and what its pill shows.
class ObservedProgram : public QObject {
    Q_OBJECT

public:
    /// Runs it in `session`. The service at `origin` has the lyrics for it, and as "/latest.json"
    /// the release feed. Fails the running test when no pill appears.
    ObservedProgram(ProgramSession session, const QString& origin);

    /// What it wrote to its standard error goes to that of the test.
    ~ObservedProgram() override;

    /// The text that the pill's line shows at this moment.
    QString text() const { return texts_.isEmpty() ? QString() : texts_.constLast(); }

    /// Every text that it has shown, in order.
    QStringList texts() const { return texts_; }

    /// Forgets the texts before the one that it shows.
    void forgetEarlierTexts() { texts_ = {text()}; }

    /// Waits until the pill shows `text`.
    bool shows(const QString& text);

    /// What the pill shows beside texts, such as "isMinimized".
    bool is(const char* form) { return pill_.ask("Form", {latin1(form)}).toBool(); }

    /// Waits until that is `value`.
    bool becomes(const char* form, bool value = true);

    /// The text of the line in the artwork panel.
    QString panelText() { return pill_.ask("Text", {QStringLiteral("panelLine")}).toString(); }

    /// Where an item is drawn in the window, in points.
    QRectF rectangle(const char* item) { return rect("Rectangle", {latin1(item)}); }

    /// The size of an item as it is laid out, without what scales it.
    QSizeF size(const char* item);
    QSizeF pillSize() { return size("pill"); }

    /// Waits until the pill's size has not changed for a while. False when it never rests.
    bool comesToRest();

    /// The native window, and that of the context menu, which is 0 while it is closed.
    quint32 window() { return pill_.ask("Window").toUInt(); }
    quint32 menu() { return pill_.ask("Menu").toUInt(); }

    bool hasMenu() { return menu() != 0; }

    /// Where the window of the open context menu is on the desktop, in points.
    QRectF menuPlace() { return rect("MenuPlace"); }

    /// Where an entry of the context menu is in the menu's window, in points.
    QRectF menuEntry(const char* text) { return rect("MenuEntry", {QString::fromUtf8(text)}); }

    /// The longest turn of its main loop since this was last asked, in processor time.
    std::chrono::microseconds longestTurn() const {
        return std::chrono::microseconds(loop_.ask("LongestTurn").toLongLong());
    }

    const ObservedSettings& settings() const { return settings_; }

    demo::Companion& process() { return *process_; }

    /// Starts it a second time, in the same way, and waits until that start has ended. Its exit
    /// status, or -1 when it does not end.
    int startAgain();

    /// The lines that it and its second starts have written to their standard error.
    QStringList errors() const;

private:
    static QString latin1(const char* text) { return QString::fromLatin1(text); }

    Q_SLOT void textChanged(const QString& text);

    /// Fails the running test when there is no such thing.
    QRectF rect(const char* method, const QVariantList& arguments = {});

    ProgramSession session_;
    QStringList arguments_;
    Observer pill_;
    Observer loop_;
    ObservedSettings settings_;
    std::unique_ptr<demo::Companion> process_;
    QStringList texts_;
};

} // namespace brellowind::test
