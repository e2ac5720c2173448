// SPDX-License-Identifier: MIT

#include "foundation/Published.h"

#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace brellowind {
namespace {

class Holder {
public:
    void assign(int next) { value.set(next); }

    Published<int, Holder> value{1};
};

TEST(Published, NotifiesBeforeTheNewValueTakesEffect) {
    Holder holder;
    std::vector<int> seen;
    const auto subscription = holder.value.observe([&] { seen.push_back(holder.value.get()); });
    holder.assign(2);
    EXPECT_EQ(seen, std::vector{1});
    EXPECT_EQ(holder.value.get(), 2);
}

TEST(Published, NotifiesAlsoWhenTheValueIsEqual) {
    Holder holder;
    int notifications = 0;
    const auto subscription = holder.value.observe([&] { ++notifications; });
    holder.assign(1);
    holder.assign(1);
    EXPECT_EQ(notifications, 2);
}

TEST(Published, StopsNotifyingWhenTheSubscriptionEnds) {
    Holder holder;
    int notifications = 0;
    {
        const auto subscription = holder.value.observe([&] { ++notifications; });
        holder.assign(2);
    }
    holder.assign(3);
    EXPECT_EQ(notifications, 1);
}

TEST(Published, SubscriptionMayOutliveTheProperty) {
    std::optional<Holder> holder(std::in_place);
    auto subscription = holder->value.observe([] {});
    holder.reset();
    subscription.cancel();
}

TEST(Published, AssigningASubscriptionEndsTheEarlierOne) {
    Holder holder;
    int first = 0;
    int second = 0;
    auto subscription = holder.value.observe([&] { ++first; });
    subscription = holder.value.observe([&] { ++second; });
    holder.assign(2);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(second, 1);
}

TEST(Published, AnObserverMayEndItsOwnSubscriptionWhileItRuns) {
    Holder holder;
    Subscription subscription;
    int own = 0;
    int other = 0;
    subscription = holder.value.observe([&] {
        ++own;
        subscription.cancel();
    });
    const auto later = holder.value.observe([&] { ++other; });
    holder.assign(2);
    holder.assign(3);
    EXPECT_EQ(own, 1);
    EXPECT_EQ(other, 2);
}

TEST(Published, AnObserverThatAnotherRemovesIsNotCalledAnyMore) {
    Holder holder;
    Subscription removed;
    int calls = 0;
    const auto remover = holder.value.observe([&] { removed.cancel(); });
    removed = holder.value.observe([&] { ++calls; });
    holder.assign(2);
    EXPECT_EQ(calls, 0);
}

TEST(Published, AnObserverAddedDuringANotificationHearsTheNextOne) {
    Holder holder;
    int calls = 0;
    std::vector<Subscription> added;
    const auto adder = holder.value.observe([&] {
        if (added.empty())
            added.push_back(holder.value.observe([&] { ++calls; }));
    });
    holder.assign(2);
    EXPECT_EQ(calls, 0);
    holder.assign(3);
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace brellowind
