#include "e2e/AccessibilityEvents.h"
#include "e2e/PillFixture.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusVariant>
#include <functional>

namespace brellowind::test {
namespace {

const auto accessibleInterface = QStringLiteral("org.a11y.atspi.Accessible");

/// A thing that assistive technology can see: who has it, and where.
struct Accessible {
    QString service;
    QDBusObjectPath path;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, Accessible& accessible) {
    argument.beginStructure();
    argument >> accessible.service >> accessible.path;
    argument.endStructure();
    return argument;
}

/// The bus of assistive technology, and a reader of the screen on it.
class Reader {
public:
    explicit Reader(const Desktop& desktop) : session_(desktop.bus.connection()) {
        tellActivatedServices(desktop);
        auto enable = QDBusMessage::createMethodCall(
            QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
        enable.setArguments({QStringLiteral("org.a11y.Status"), QStringLiteral("IsEnabled"),
                             QVariant::fromValue(QDBusVariant(true))});
        EXPECT_EQ(session_.call(enable).type(), QDBusMessage::ReplyMessage);
        const QDBusReply<QString> address = session_.call(QDBusMessage::createMethodCall(
            QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
        EXPECT_TRUE(address.isValid()) << qPrintable(address.error().message());
        name_ = address.value();
        EXPECT_TRUE(QDBusConnection::connectToBus(name_, name_).isConnected());
    }

    ~Reader() { QDBusConnection::disconnectFromBus(name_); }

    /// The first thing of a name and a role, whichever program has it.
    std::optional<Accessible> find(const QString& name, const QString& role) {
        return find({QStringLiteral("org.a11y.atspi.Registry"),
                     QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))},
                    name, role, 12);
    }

    QDBusConnection bus() const { return QDBusConnection(name_); }

    /// Does what the first action of a thing does.
    bool press(const Accessible& accessible) {
        const QDBusReply<bool> done =
            ask(accessible, QStringLiteral("org.a11y.atspi.Action"), "DoAction", {0});
        return done.isValid() && done.value();
    }

private:
    /// Services that the bus starts shall live on the desktop of the test.
    void tellActivatedServices(const Desktop& desktop) {
        QMap<QString, QString> environment;
        const auto whole = desktop.environment();
        for (const QString& key : whole.keys())
            environment.insert(key, whole.value(key));
        qDBusRegisterMetaType<QMap<QString, QString>>();
        auto update = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
        update.setArguments({QVariant::fromValue(environment)});
        EXPECT_EQ(session_.call(update).type(), QDBusMessage::ReplyMessage);
    }

    QDBusMessage ask(const Accessible& accessible, const QString& interface, const char* method,
                     const QVariantList& arguments = {}) {
        auto question = QDBusMessage::createMethodCall(accessible.service, accessible.path.path(),
                                                       interface, QString::fromLatin1(method));
        question.setArguments(arguments);
        return QDBusConnection(name_).call(question);
    }

    QString nameOf(const Accessible& accessible) {
        const QDBusReply<QDBusVariant> name =
            ask(accessible, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                {accessibleInterface, QStringLiteral("Name")});
        return name.isValid() ? name.value().variant().toString() : QString();
    }

    QString roleOf(const Accessible& accessible) {
        const QDBusReply<QString> role = ask(accessible, accessibleInterface, "GetRoleName");
        return role.isValid() ? role.value() : QString();
    }

    std::optional<Accessible> find(const Accessible& root, const QString& name, const QString& role,
                                   int depth) {
        if (nameOf(root) == name && roleOf(root) == role)
            return root;
        if (depth == 0)
            return std::nullopt;
        const auto answer = ask(root, accessibleInterface, "GetChildren");
        if (answer.type() != QDBusMessage::ReplyMessage)
            return std::nullopt;
        for (const auto& child : qdbus_cast<QList<Accessible>>(answer.arguments().value(0)))
            if (auto found = find(child, name, role, depth - 1))
                return found;
        return std::nullopt;
    }

    QDBusConnection session_;
    QString name_;
};

class PillAccessibility : public PillOnDesktop {
protected:
    std::optional<Accessible> waitFor(const char* name, const char* role) {
        std::optional<Accessible> found;
        EXPECT_TRUE(waitUntil([&] {
            found = reader.find(QString::fromUtf8(name), QString::fromUtf8(role));
            return found.has_value();
        })) << name
            << ", " << role;
        return found;
    }

    Reader reader{desktop};
};

TEST_F(PillAccessibility, TheLineCanBeRead) {
    startSinging();
    EXPECT_TRUE(waitFor("line", "label"));
}

TEST_F(PillAccessibility, TheIndicatorPlaysAndPauses) {
    startSinging();
    const auto pause = waitFor("Pause", "push button");
    ASSERT_TRUE(pause);
    EXPECT_TRUE(reader.press(*pause));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Paused"); }));
    const auto play = waitFor("Play", "push button");
    ASSERT_TRUE(play);
    EXPECT_TRUE(reader.press(*play));
    EXPECT_TRUE(waitUntil([&] { return player->status() == QStringLiteral("Playing"); }));
}

TEST_F(PillAccessibility, ANewNameIsToldToThoseWhoListen) {
    startSinging();
    const auto indicator = waitFor("Pause", "push button");
    ASSERT_TRUE(indicator);
    const AccessibilityEvents events(reader.bus());
    player->setStatus("Paused");
    EXPECT_TRUE(waitUntil([&] { return events.renamed().contains(indicator->path.path()); }));
}

TEST_F(PillAccessibility, TheCoverOpensThePanelAndTheGrabberClosesIt) {
    startSinging();
    const auto cover = waitFor("Show artwork", "push button");
    ASSERT_TRUE(cover);
    EXPECT_TRUE(reader.press(*cover));
    EXPECT_TRUE(program->becomes("isArtExpanded"));
    const auto grabber = waitFor("Close artwork", "push button");
    ASSERT_TRUE(grabber);
    EXPECT_TRUE(reader.press(*grabber));
    EXPECT_TRUE(program->becomes("isArtExpanded", false));
}

} // namespace
} // namespace brellowind::test
