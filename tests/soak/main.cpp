// SPDX-License-Identifier: MIT

#include "e2e/PillFixture.h"
#include "session/x11/Monitors.h"
#include "soak/Consumption.h"
#include "soak/FaultyService.h"
#include "soak/Growth.h"
#include "soak/RestlessPerson.h"
#include "soak/RestlessPlayer.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

// The real program for a long time, with random events of a desktop session.
namespace brellowind::test {
namespace {

using std::chrono::milliseconds;

milliseconds duration{0};
QString summary; ///< of the run, one line

/// A quantity that must not grow, and the tolerance between two fifths of the run.
struct Quantity {
    const char* name;
    const char* unit;
    double Consumption::*value;
    double tolerance = std::numeric_limits<double>::infinity(); ///< infinite: reported only
};

// Memory varies with covers and the allocator; files and X resources with operations in progress.
// PSS depends on other programs that use the same libraries.
constexpr Quantity quantities[] = {
    {"PSS", " MB", &Consumption::pssMB},
    {"RSS", " MB", &Consumption::rssMB, 3},
    {"private", " MB", &Consumption::privateMB, 2},
    {"files", "", &Consumption::files, 4},
    {"threads", "", &Consumption::threads, 2},
    {"X resources", "", &Consumption::xResources, 8},
    {"pixmaps", " MB", &Consumption::pixmapsMB, 2},
};

/// The log lines that failures of player and service may cause.
const QRegularExpression
    expectedLine(QStringLiteral("^(Spotify AppleScript error|Update check failed): "));

/// The texts that the pill may show. A player that has just started has no title.
const QRegularExpression expectedText(
    QStringLiteral("^(No music playing|Loading lyrics…|♪|(Song \\d+)?(, line \\d+)?)$"));

class Soak : public PillOnDesktop {
protected:
    Soak() : PillOnDesktop(QStringLiteral("1280x800x24")) {
        service.handler = [this](const demo::Exchange& exchange) { faulty.answer(exchange); };
    }

    /// A few seconds of random events.
    void riot() {
        faulty.failsNow = true;
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 2500 && isAlive();) {
            for (int more = chance.below(4); more > 0; --more)
                visitor->act();
            if (chance.onceIn(4))
                restless->act();
            if (chance.onceIn(150))
                changeScreens();
            runFor(milliseconds(chance.below(30)));
        }
    }

    /// Restores an idle state and measures the resource usage.
    void rest() {
        if (isDivided)
            joinMonitors();
        visitor->leave();
        runFor(milliseconds(200));
        samples.push_back(consumption(pid(), x, program->window()));
        std::fprintf(stderr, "sample %zu: RSS %.2f MB, private %.2f MB\n", samples.size(),
                     samples.back().rssMB, samples.back().privateMB);
        for (const QString& text : program->texts())
            EXPECT_TRUE(expectedText.match(text).hasMatch()) << qPrintable(text);
        program->forgetEarlierTexts();
    }

    /// Changes the screen's size or adds a second monitor in the right half; checks the pill's
    /// position.
    void changeScreens() {
        ++screenChanges;
        if (isDivided) {
            joinMonitors();
        } else if (chance.onceIn(2)) {
            isDivided = true;
            const int half = size.width() / 2;
            monitors.add(right, {half, 0, half, size.height()}, true);
            EXPECT_TRUE(hangsInTheMiddleOf(half, half));
        } else {
            size = chance.oneOf<QSize>({{1024, 700}, {700, 600}, {1280, 800}});
            monitors.resize(size);
            EXPECT_TRUE(hangsInTheMiddleOf(0, size.width()));
        }
    }

    void joinMonitors() {
        isDivided = false;
        monitors.remove(right);
        EXPECT_TRUE(hangsInTheMiddleOf(0, size.width()));
    }

    bool hangsInTheMiddleOf(int left, int width) {
        const int own = std::min(width, 640);
        const QRect place(left + (width - own) / 2, 0, own, 540);
        return waitUntil([&] { return x.geometry(program->window()) == place; });
    }

    /// Checks that the program still works.
    void singsAsOnTheFirstDay() {
        faulty.failsNow = false;
        restless->settle(QStringLiteral("Song 0"), "Paused", 10);
        EXPECT_TRUE(program->shows(FaultyService::line(QStringLiteral("Song 0"), 10)));
        restless->settle(QStringLiteral("Song 1"), "Paused", 20);
        EXPECT_TRUE(program->shows(FaultyService::line(QStringLiteral("Song 1"), 20)));
        program->forgetEarlierTexts();
        restless->settle(QStringLiteral("Song 1"), "Playing", 20);
        EXPECT_TRUE(program->shows(FaultyService::line(QStringLiteral("Song 1"), 23)));
        person.pointAt(middleOf("pill"));
        EXPECT_TRUE(program->becomes("hovered"));
        EXPECT_GE(program->texts().size(), 8) << "it skips lines";
    }

    void expectNoGrowth() {
        for (const auto& quantity : quantities) {
            std::vector<double> values;
            for (const auto& sample : samples)
                values.push_back(sample.*quantity.value);
            const auto [early, late] = growth(values);
            summary += QStringLiteral(", %1 %2 → %3%4")
                           .arg(QLatin1String(quantity.name), QString::number(early, 'f', 1),
                                QString::number(late, 'f', 1), QLatin1String(quantity.unit));
            EXPECT_LE(late - early, quantity.tolerance) << quantity.name << " grows";
        }
    }

    /// Checks that the events really happened.
    void expectThatMuchHappened() {
        const std::pair<const char*, int> events[] = {
            {"tracks", restless->tracks},    {"seeks", restless->seeks},
            {"pauses", restless->pauses},    {"hangs", restless->hangs},
            {"crashes", restless->crashes},  {"lyrics", faulty.lyrics},
            {"covers", faulty.covers},       {"checks", faulty.feeds},
            {"faults", faulty.faults},       {"movements", visitor->movements},
            {"clicks", visitor->clicks},     {"menus", visitor->menus},
            {"settings", visitor->settings}, {"screens", screenChanges},
        };
        for (const auto& [name, count] : events) {
            summary += QStringLiteral(", %1 %2").arg(QLatin1String(name)).arg(count);
            EXPECT_GT(count, 0) << name;
        }
    }

    void expectNoUnexpectedWords() {
        const QStringList lines = program->errors();
        summary += QStringLiteral(", log lines %1").arg(lines.size());
        for (const QString& line : lines) {
            EXPECT_TRUE(expectedLine.match(line).hasMatch()) << qPrintable(line);
            EXPECT_FALSE(line.contains(QStringLiteral("Song ")) ||
                         line.contains(QStringLiteral("127.0.0.1")))
                << qPrintable(line);
        }
    }

    bool isAlive() { return program->process().isRunning(); }
    pid_t pid() { return static_cast<pid_t>(program->process().processId()); }

    Chance chance{1};
    FaultyService faulty{chance};
    Monitors monitors{desktop.xServer.display()};
    std::optional<RestlessPlayer> restless;
    std::optional<RestlessPerson> visitor;
    const QString right = QStringLiteral("right");
    QSize size = Monitors::initialSize;
    bool isDivided = false; ///< there is a second monitor at the right
    int screenChanges = 0;
    std::vector<Consumption> samples;
};

TEST_F(Soak, LeavesTheProgramAsItWas) {
    restless.emplace(desktop.bus.connection(), service.origin(), chance);
    visitor.emplace(x, start(), chance);
    QElapsedTimer time;
    for (time.start(); time.elapsed() < duration.count() && !HasFailure();) {
        riot();
        ASSERT_TRUE(isAlive()) << "the program has ended";
        rest();
    }
    ASSERT_GE(samples.size(), 5U);
    summary = QStringLiteral("%1 min, %2 samples")
                  .arg(static_cast<double>(time.elapsed()) / 60000, 0, 'f', 1)
                  .arg(samples.size());
    singsAsOnTheFirstDay();
    expectNoGrowth();
    expectThatMuchHappened();
    expectNoUnexpectedWords();
}

/// A listener that prints failures only.
class Complaints : public testing::EmptyTestEventListener {
    void OnTestPartResult(const testing::TestPartResult& result) override {
        if (result.failed())
            std::fprintf(stderr, "%s:%d: %s\n", result.file_name() ? result.file_name() : "",
                         result.line_number(), result.message());
    }
};

std::optional<int> minutes(int argc, char** argv) {
    int number = 0;
    if (argc != 3 || std::string_view(argv[1]) != "--minutes")
        return std::nullopt;
    const std::string_view text(argv[2]);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isWhole = error == std::errc() && end == text.data() + text.size();
    return isWhole && number >= 1 && number <= 9999 ? std::optional(number) : std::nullopt;
}

} // namespace
} // namespace brellowind::test

int main(int argc, char** argv) {
    using namespace brellowind::test;
    const auto wanted = minutes(argc, argv);
    if (!wanted) {
        std::fprintf(stderr, "usage: brellowind-soak --minutes N\n");
        return 2;
    }
    duration = std::chrono::minutes(*wanted);
    const QCoreApplication application(argc, argv);
    argc = 1;
    testing::InitGoogleTest(&argc, argv);
    auto& listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    listeners.Append(new Complaints);
    const bool failed = RUN_ALL_TESTS() != 0;
    std::printf("soak: %s: %s\n", failed ? "failed" : "passed", qPrintable(summary));
    return failed ? 1 : 0;
}
