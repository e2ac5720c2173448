#include "Searching.h"

#include "Allocations.h"
#include "Stopwatch.h"
#include "Texts.h"
#include "support/RootViewParts.h"
#include "views/NotchRootView.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>

namespace brellowind::benchmarks {
namespace {

using nlohmann::json;

/// A view whose song plays, with the lyrics `lrc`.
struct PlayingView {
    PlayingView(const std::string& lrc, double position) {
        player.plays = true;
        player.position = position;
        view->appear();
        machine.mainLoop.runTurns();
        machine.http.answer(0, platform::HttpResponse{200, json{{"syncedLyrics", lrc}}.dump()});
        machine.mainLoop.runTurns();
    }

    test::TestMachine machine;
    test::FakePlayer& player = machine.player;
    test::RootViewParts parts{machine};
    std::shared_ptr<NotchRootView> view = parts.make();
};

/// A function that is called, as the other is.
[[gnu::noinline]] std::optional<std::size_t> upperBound(const std::vector<LyricLine>& lines,
                                                        double seconds) {
    const auto after = std::ranges::upper_bound(lines, seconds, {}, &LyricLine::time);
    if (after == lines.begin())
        return std::nullopt;
    return static_cast<std::size_t>(after - lines.begin()) - 1;
}

json searchOf(const std::string& text, double length) {
    const PlayingView playing(text, 0);
    const auto& store = playing.view->lyrics();
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(0, length);
    std::array<double, 1024> moments;
    std::ranges::generate(moments, [&] { return anywhere(random); });
    const auto over = [&moments](auto search) {
        return [&moments, search] {
            for (const double moment : moments)
                keep(search(moment));
        };
    };
    const auto active = over([&](double moment) { return store.activeIndex(moment); });
    const auto bound = over([&](double moment) { return upperBound(store.lines(), moment); });
    const std::size_t before = allocations();
    active();
    const std::size_t allocated = allocations() - before;
    const auto times = race({active, bound}, 0.5);
    return {{"lines", store.lines().size()},
            {"activeIndex", times[0] / moments.size()},
            {"upperBound", times[1] / moments.size()},
            {"allocations", allocated}};
}

} // namespace

json searching() {
    return {searchOf(texts::typical(), 210), searchOf(texts::large(1 << 20), 5990)};
}

json ticking() {
    using namespace std::chrono_literals;
    constexpr int ticks = 19; // up to the next reading of the player
    PlayingView playing("[00:01.00]A line of quite a few words\n[50:00.00]Far", 12);
    int redraws = 0;
    const auto redrawn = playing.view->onRedraw([&] {
        ++redraws;
        keep(playing.view->currentLineText());
    });
    playing.machine.mainLoop.advance(1s);
    redraws = 0;
    const std::size_t before = allocations();
    playing.machine.mainLoop.advance(50ms * ticks);
    const std::size_t allocated = allocations() - before;
    return {{"ticks", redraws}, {"allocations", allocated}};
}

} // namespace brellowind::benchmarks
