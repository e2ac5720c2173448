#include "platform/Services.h"
#include "platform/SharedInstance.h"
#include "support/TestMachine.h"

#include <gtest/gtest.h>

namespace brellowind::platform {
namespace {

TEST(Services, InnermostScopeCountsAndTheOuterOneComesBack) {
    const test::TestMachine outer;
    {
        const test::TestMachine inner;
        EXPECT_EQ(&services().log, &inner.log);
    }
    EXPECT_EQ(&services().log, &outer.log);
}

TEST(SharedInstance, IsMadeOnceForEachTypeAndGoesWithTheServices) {
    const auto value = std::make_shared<int>(1);
    const auto again = std::make_shared<int>(2);
    {
        const test::TestMachine machine;
        EXPECT_EQ(&sharedInstance<int>([&] { return value; }), value.get());
        EXPECT_EQ(&sharedInstance<int>([&] { return again; }), value.get());
        EXPECT_EQ(sharedInstance<double>([] { return std::make_shared<double>(0.5); }), 0.5);
        EXPECT_EQ(value.use_count(), 2);
        EXPECT_EQ(again.use_count(), 1);
    }
    EXPECT_EQ(value.use_count(), 1);
}

TEST(ServicesDeathTest, UseWithoutInstallationStopsTheProgram) {
    EXPECT_DEATH(services(), "no platform services are installed");
}

} // namespace
} // namespace brellowind::platform
