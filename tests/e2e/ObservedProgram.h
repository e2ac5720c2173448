// SPDX-License-Identifier: MIT

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

/// A running program and the content of its pill.
class ObservedProgram : public QObject {
    Q_OBJECT

public:
    /// Runs it in `session`. `origin` has the lyrics service and, at "/latest.json", the release
    /// feed. Fails the test if no pill appears.
    ObservedProgram(ProgramSession session, const QString& origin);

    /// Prints its standard error to that of the test.
    ~ObservedProgram() override;

    /// The current text of the pill's line.
    QString text() const { return texts_.isEmpty() ? QString() : texts_.constLast(); }

    /// All texts so far, in order.
    QStringList texts() const { return texts_; }

    /// Forgets the texts before the current one.
    void forgetEarlierTexts() { texts_ = {text()}; }

    /// Waits until the pill shows `text`.
    bool shows(const QString& text);

    /// A flag of the pill's form, such as "isMinimized".
    bool is(const char* form) { return pill_.ask("Form", {latin1(form)}).toBool(); }

    /// Waits until that is `value`.
    bool becomes(const char* form, bool value = true);

    /// The text of the line in the artwork panel.
    QString panelText() { return pill_.ask("Text", {QStringLiteral("panelLine")}).toString(); }

    /// The drawn rectangle of an item in the window, in points.
    QRectF rectangle(const char* item) { return rect("Rectangle", {latin1(item)}); }

    /// The laid-out size of an item, without scaling.
    QSizeF size(const char* item);
    QSizeF pillSize() { return size("pill"); }

    /// Waits until the pill's size has not changed for a while. Returns false after a timeout.
    bool comesToRest();

    /// The native windows of the pill and of the context menu; 0 while it is closed.
    quint32 window() { return pill_.ask("Window").toUInt(); }
    quint32 menu() { return pill_.ask("Menu").toUInt(); }

    bool hasMenu() { return menu() != 0; }

    /// The geometry of the open context menu on the desktop, in points.
    QRectF menuPlace() { return rect("MenuPlace"); }

    /// The rectangle of an entry in the context menu's window, in points.
    QRectF menuEntry(const char* text) { return rect("MenuEntry", {QString::fromUtf8(text)}); }

    /// The longest turn of its main loop since the last call, in CPU time.
    std::chrono::microseconds longestTurn() const {
        return std::chrono::microseconds(loop_.ask("LongestTurn").toLongLong());
    }

    const ObservedSettings& settings() const { return settings_; }

    demo::Companion& process() { return *process_; }

    /// Starts a second instance and waits for its end. Returns its exit status, or -1 after a
    /// timeout.
    int startAgain();

    /// The lines of standard error of all instances.
    QStringList errors() const;

private:
    static QString latin1(const char* text) { return QString::fromLatin1(text); }

    Q_SLOT void textChanged(const QString& text);

    /// Fails the test if it does not exist.
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
