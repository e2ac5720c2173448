// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"
#include "session/LoopWatch.h"
#include "session/ProcessUse.h"
#include "session/x11/Monitors.h"
#include "session/x11/XSettings.h"

#include <QDBusMessage>
#include <algorithm>
#include <optional>
#include <random>
#include <xcb/res.h>

namespace brellowind::test {
namespace {

using std::chrono::milliseconds;

/// A desktop whose screens and managers change.
class PillRestless : public PillOnDesktop {
protected:
    explicit PillRestless(const QString& screen = QStringLiteral("2400x900x24"))
        : PillOnDesktop(screen) {}

    ProcessUse use() { return ProcessUse(program->process().processId()); }

    /// The number of the program's X resources: windows, pixmaps and others. Not those that the
    /// server makes when a compositing manager selects events about the shapes of its windows.
    quint32 resources() {
        const auto answer =
            x.ask<xcb_res_query_client_resources, xcb_res_query_client_resources_reply>(
                program->window());
        EXPECT_TRUE(answer);
        const xcb_atom_t shapeEvents = x.atom("ShapeEvent");
        quint32 count = 0;
        for (auto type = xcb_res_query_client_resources_types_iterator(answer.get()); type.rem > 0;
             xcb_res_type_next(&type))
            if (type.data->resource_type != shapeEvents)
                count += type.data->count;
        return count;
    }

    /// Whether the program uses no more X resources and files than earlier, once it has released
    /// those of its last frames.
    bool holdsNoMoreThan(quint32 earlierResources, qint64 earlierDescriptors) {
        return waitUntil([&] {
            return resources() <= earlierResources && use().descriptors() <= earlierDescriptors;
        });
    }

    /// Waits until the window is at the middle of the top edge of a screen.
    bool hangsFrom(const QRect& screen) {
        const int width = std::min(screen.width(), 640 * scale);
        const QRect place(screen.x() + (screen.width() - width + 1) / 2, screen.y(), width,
                          540 * scale);
        return waitUntil([&] { return x.geometry(program->window()) == place; });
    }

    void announceLock(bool active) {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/gnome/ScreenSaver"),
                                                 QStringLiteral("org.gnome.ScreenSaver"),
                                                 QStringLiteral("ActiveChanged"));
        signal << active;
        EXPECT_TRUE(desktop.bus.connection().send(signal));
    }

    /// Whether the window is not shaped, as with a compositing manager.
    bool isWhole() {
        const QRegion shape = x.shape(program->window(), XCB_SHAPE_SK_BOUNDING);
        return shape == QRegion(QRect({0, 0}, x.geometry(program->window()).size()));
    }

    bool isShown() { return x.isViewable(program->window()); }

    Monitors monitors{desktop.xServer.display()};
};

TEST_F(PillRestless, HangsRightAfterAThousandChangesOfTheScreens) {
    constexpr int rounds = 20;
    constexpr int changesPerRound = 50;
    std::mt19937 random(20); // fixed seed
    const auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const QStringList names{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")};
    QMap<QString, QSize> sizes;
    const auto place = [&](const QString& name, QSize size, bool primary) {
        sizes[name] = size;
        const QRect monitor({below(2400 - size.width() + 1), below(900 - size.height() + 1)}, size);
        if (monitors.has(name))
            monitors.remove(name);
        monitors.add(name, monitor, primary);
        return monitor;
    };
    const auto change = [&] {
        const QString name = names[below(3)];
        if (!monitors.has(name))
            place(name, {400 + below(800), 400 + below(500)}, below(2) == 0);
        else if (const int kind = below(4); kind == 0)
            monitors.remove(name);
        else if (kind == 1 && sizes[name].width() <= 900)
            place(name, sizes[name].transposed(), below(2) == 0); // as when it is turned
        else if (kind == 2)
            place(name, {400 + below(800), 400 + below(500)}, below(2) == 0);
        else
            place(name, sizes[name], below(2) == 0); // it moves
    };
    startSinging();
    program->longestTurn();
    qint64 descriptors = 0;
    qint64 memory = 0;
    quint32 held = 0;
    QString last;
    for (int round = 0; round < rounds; ++round) {
        for (int i = 0; i < changesPerRound; ++i)
            change();
        for (const QString& name : names + QStringList{last})
            if (monitors.has(name))
                monitors.remove(name);
        // Qt does not notice a new position of a monitor that reappears at once with the same name.
        last = QStringLiteral("last%1").arg(round);
        const QRect only = place(last, {700 + below(500), 600}, true);
        ASSERT_TRUE(hangsFrom(only)) << "in round " << round;
        EXPECT_TRUE(isShown());
        if (round == 4) {
            descriptors = use().descriptors();
            memory = use().memoryKiB();
            held = resources();
        }
    }
    EXPECT_TRUE(program->comesToRest());
    EXPECT_TRUE(holdsNoMoreThan(held + 8, descriptors));
    EXPECT_LT(use().memoryKiB() - memory, growthWithoutLeakKiB);
    enterPill();
}

class PillOnAScreenThatIsSwitchedOff : public PillRestless {
protected:
    PillOnAScreenThatIsSwitchedOff() : PillRestless(QStringLiteral("1280x800x24")) {}
};

TEST_F(PillOnAScreenThatIsSwitchedOff, ComesBackWithTheScreen) {
    startSinging();
    for (int i = 0; i < 3; ++i) {
        monitors.switchOff();
        runFor(milliseconds(300));
        ASSERT_TRUE(program->process().isRunning());
        monitors.resize(Monitors::initialSize);
        EXPECT_TRUE(hangsFrom({{0, 0}, Monitors::initialSize}));
        EXPECT_TRUE(isShown());
    }
    enterPill();
}

class PillOnAScreenOfAnotherDensity : public PillRestless {
protected:
    PillOnAScreenOfAnotherDensity() : PillRestless(QStringLiteral("2880x1800x24")) {
        service.handler = [](const demo::Exchange& exchange) {
            exchange.respond(200, R"({"syncedLyrics":"[00:00.00]line\n[01:00.00]another line"})");
        };
    }

    /// Sets the scale in the desktop's settings.
    void choose(int pixels) {
        scale = pixels;
        settings->setDotsPerInch(96 * pixels);
    }

    /// Checks that the pill is black up to its lower edge and correctly shaped.
    bool isDrawn() {
        const QPoint window = x.geometry(program->window()).topLeft();
        const QRectF pill = program->rectangle("pill");
        const QPointF edge(pill.center().x(), pill.bottom());
        const auto at = [&](QPointF point) { return x.pixel(window + (point * scale).toPoint()); };
        return at(edge - QPointF(0, 3)) == QColor(Qt::black) &&
               at(edge + QPointF(0, 3)) == PlainWindow::colour();
    }

    /// Checks position, picture, input and lyrics of the pill.
    void expectWell() {
        EXPECT_TRUE(hangsFrom({QPoint(0, 0), screenSize}));
        EXPECT_TRUE(isShown());
        EXPECT_TRUE(waitUntil([&] { return isDrawn(); }));
        const bool isFirst = program->text() == QStringLiteral("line");
        player->setPosition(isFirst ? 61 : 1);
        EXPECT_TRUE(
            program->shows(isFirst ? QStringLiteral("another line") : QStringLiteral("line")));
        enterPill();
        leavePill();
    }

    std::optional<XSettings> settings{std::in_place, desktop.xServer.display(), 96};
};

TEST_F(PillOnAScreenOfAnotherDensity, IsAsLargeAsThePersonChooses) {
    startSinging();
    below();
    expectWell();
    for (const int pixels : {2, 1, 3, 1}) {
        SCOPED_TRACE(pixels);
        choose(pixels);
        expectWell();
    }
    choose(2);
    ASSERT_TRUE(hangsFrom({QPoint(0, 0), screenSize}));
    settings.reset(); // the settings manager exits
    expectWell();
}

TEST_F(PillOnAScreenOfAnotherDensity, OpensItsMenuAsLargeAsThePill) {
    startSinging();
    const auto menuSize = [&] {
        openMenu();
        const QSize size = x.geometry(program->menu()).size();
        person.pressAt({2, screenSize.height() - 2});
        EXPECT_TRUE(waitUntil([&] { return program->menu() == 0; }));
        leavePill();
        return size;
    };
    const QSize before = menuSize();
    choose(2);
    ASSERT_TRUE(hangsFrom({QPoint(0, 0), screenSize}));
    EXPECT_EQ(menuSize(), before * 2);
    choose(1);
    ASSERT_TRUE(hangsFrom({QPoint(0, 0), screenSize}));
    EXPECT_EQ(menuSize(), before);
}

TEST_F(PillOnAScreenOfAnotherDensity, LeavesNothingBehindHoweverOftenItChanges) {
    // Qt keeps a buffer for parts of the window, of the largest size so far.
    constexpr qint64 copyKiB = 1280 * 1080 * 4 / 1024;
    startSinging();
    const auto changeAndBack = [&] {
        for (const int pixels : {2, 1}) {
            choose(pixels);
            ASSERT_TRUE(hangsFrom({QPoint(0, 0), screenSize}));
            EXPECT_TRUE(program->comesToRest());
        }
    };
    for (int i = 0; i < 5; ++i)
        changeAndBack();
    const quint32 held = resources();
    const qint64 descriptors = use().descriptors();
    const qint64 memory = use().memoryKiB();
    for (int i = 0; i < 15; ++i)
        changeAndBack();
    EXPECT_TRUE(holdsNoMoreThan(held, descriptors));
    EXPECT_LT(use().memoryKiB() - memory, growthWithoutLeakKiB + copyKiB);
}

TEST_F(PillRestless, OutlivesItsWindowManagerAndItsCompositingManager) {
    startSinging();
    const QRect place = x.geometry(program->window());
    const auto round = [&] {
        windowManager.reset();
        windowManager.emplace(x);
        std::optional<CompositingManager> compositing(x);
        EXPECT_TRUE(waitUntil([&] { return isWhole(); }));
        windowManager.reset();
        compositing.reset();
        EXPECT_TRUE(waitUntil([&] { return !isWhole(); }));
        windowManager.emplace(x);
        EXPECT_TRUE(isShown());
        EXPECT_EQ(x.geometry(program->window()), place);
    };
    round();
    const quint32 held = resources();
    const qint64 descriptors = use().descriptors();
    for (int i = 0; i < 5; ++i)
        round();
    EXPECT_TRUE(holdsNoMoreThan(held, descriptors));
    PlainWindow& covering = below();
    EXPECT_TRUE(waitUntil([&] { return x.isAbove(program->window(), covering.id()); }));
    enterPill();
}

TEST_F(PillRestless, StaysWhereItIsWhileItsWindowManagerBeginsAgain) {
    startSinging();
    PlainWindow& covering = below();
    const QRect place = x.geometry(program->window());
    const auto round = [&] {
        windowManager->restart();
        EXPECT_TRUE(isShown());
        EXPECT_EQ(x.geometry(program->window()), place);
        EXPECT_EQ(x.frameOf(program->window()), program->window()) << "it was given a frame";
        EXPECT_TRUE(waitUntil([&] { return x.isAbove(program->window(), covering.id()); }));
    };
    round();
    const quint32 held = resources();
    const qint64 descriptors = use().descriptors();
    for (int i = 0; i < 10; ++i)
        round();
    EXPECT_TRUE(holdsNoMoreThan(held, descriptors));
    enterPill();
}

TEST_F(PillRestless, IsNeverOverALockerHoweverOftenItComes) {
    startSinging();
    const quint32 held = resources();
    for (int i = 0; i < 20; ++i) {
        announceLock(true);
        ASSERT_TRUE(waitUntil([&] { return !isShown(); }));
        const QRect monitor(i * 50, 0, 1000, 800);
        const QString name = QStringLiteral("monitor%1").arg(i);
        monitors.add(name, monitor, true);
        {
            const PlainWindow locker(desktop.xServer.display(), {0, 0, 2400, 900},
                                     PlainWindow::Kind::unmanaged);
            runFor(milliseconds(30));
            EXPECT_FALSE(isShown()) << "over the locker";
        }
        announceLock(false);
        ASSERT_TRUE(waitUntil([&] { return isShown(); }));
        EXPECT_TRUE(hangsFrom(monitor));
        monitors.remove(name);
    }
    EXPECT_TRUE(waitUntil([&] { return resources() <= held + 8; }));
}

} // namespace
} // namespace brellowind::test
