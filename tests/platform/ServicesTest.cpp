#include "platform/Services.h"
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

TEST(ServicesDeathTest, UseWithoutInstallationStopsTheProgram) {
    EXPECT_DEATH(services(), "no platform services are installed");
}

} // namespace
} // namespace brellowind::platform
