// SPDX-License-Identifier: MIT

#include "support/RootViewParts.h"
#include "views/NotchRootView.h"

#include <cstddef>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <string>

// While music plays, the pill is redrawn 20 times a second, and the logic must not allocate. This
// program counts all calls of the global operator new.

// They replace each other here.
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"

namespace {

std::size_t allocations = 0;

void* allocate(std::size_t size, std::size_t alignment) {
    ++allocations;
    const std::size_t padded = (size + alignment - 1) / alignment * alignment;
    if (void* memory = std::aligned_alloc(alignment, padded > 0 ? padded : alignment))
        return memory;
    std::abort();
}

} // namespace

void* operator new(std::size_t size) {
    return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocate(size, static_cast<std::size_t>(alignment));
}

void* operator new[](std::size_t size) {
    return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocate(size, static_cast<std::size_t>(alignment));
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::align_val_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}

namespace brellowind {
namespace {

using namespace std::chrono_literals;

/// The number of allocations by `work`.
template <typename Work>
std::size_t allocationsDuring(Work work) {
    const std::size_t before = allocations;
    work();
    return allocations - before;
}

/// A playing song with a line every ten seconds, each too long for the small-string optimisation.
struct PlayingView {
    PlayingView() {
        spotify.title = "A title that is too long for the small buffer of a string";
        spotify.plays = true;
        spotify.position = 12;
        view.appear();
        machine.mainLoop.runTurns();
        machine.http.answer(0, platform::HttpResponse{200, body()});
        machine.mainLoop.runTurns();
    }

    static std::string body() {
        std::string lrc;
        for (int i = 1; i < 10; ++i)
            lrc += "[00:" + std::to_string(i) + "0.00]Line " + std::to_string(i) +
                   " of the song, of quite a few words\\n";
        return R"({"syncedLyrics":")" + lrc + R"("})";
    }

    test::TestMachine machine;
    test::FakePlayer& spotify = machine.player;
    test::RootViewParts parts{machine};
    std::shared_ptr<NotchRootView> root = parts.make();
    NotchRootView& view = *root;
};

TEST(Allocation, IsCounted) {
    EXPECT_EQ(allocationsDuring([] { std::make_unique<int>(1); }), 1U);
    EXPECT_EQ(allocationsDuring([] { std::make_unique<int[]>(9); }), 1U);
    struct alignas(64) Wide {
        char bytes[64];
    };
    EXPECT_EQ(allocationsDuring([] { std::make_unique<Wide>(); }), 1U);
}

TEST(Allocation, SearchForTheActiveLineMakesNone) {
    const PlayingView playing;
    std::size_t found = 0;
    EXPECT_EQ(allocationsDuring([&] {
                  for (double seconds = 0; seconds < 120; seconds += 0.05)
                      found += playing.view.lyrics().activeIndex(seconds) ? 1 : 0;
              }),
              0U);
    EXPECT_GT(found, 2000U);
}

TEST(Allocation, TextOfThePillMakesNone) {
    const PlayingView playing;
    std::size_t length = 0;
    EXPECT_EQ(allocationsDuring([&] { length = playing.view.currentLineText().size(); }), 0U);
    EXPECT_EQ(length, std::string_view("Line 1 of the song, of quite a few words").size());
}

TEST(Allocation, TicksThatChangeNoLineMakeNone) {
    PlayingView playing;
    playing.machine.mainLoop.advance(100ms); // the pulse of the beginning ends
    int redraws = 0;
    std::string_view shown;
    const auto subscription = playing.view.onRedraw([&] {
        ++redraws;
        shown = playing.view.currentLineText();
    });
    const auto* line = playing.view.currentLineText().data();
    EXPECT_EQ(allocationsDuring([&] { playing.machine.mainLoop.advance(850ms); }), 0U);
    EXPECT_EQ(redraws, 17);
    EXPECT_EQ(shown.data(), line) << "the line changed";
}

TEST(Allocation, TicksThatChangeTheLineMakeNoneEither) {
    PlayingView playing;
    playing.spotify.position = 19.5;
    playing.machine.mainLoop.advance(1s);
    const std::string before(playing.view.currentLineText());
    EXPECT_EQ(allocationsDuring([&] { playing.machine.mainLoop.advance(950ms); }), 0U);
    EXPECT_NE(playing.view.currentLineText(), before);
}

TEST(Allocation, TicksOfAPausedPlayerMakeNone) {
    PlayingView playing;
    playing.spotify.plays = false;
    playing.machine.mainLoop.advance(1s);
    ASSERT_FALSE(playing.view.nowPlaying().isPlaying.get());
    EXPECT_EQ(allocationsDuring([&] { playing.machine.mainLoop.advance(999ms); }), 0U);
}

} // namespace
} // namespace brellowind
