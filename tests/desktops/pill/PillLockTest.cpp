#include "desktops/pill/PillOnCompositor.h"

namespace brellowind::test {
namespace {

class PillLock : public PillOnCompositor {};

TEST_F(PillLock, HidesThePillAndTakesThePointerFromIt) {
    requireProgram(QStringLiteral("swaylock"), QStringLiteral("swaylock"));
    below();
    startSinging();
    EXPECT_FALSE(silhouette(picture()).isEmpty());
    const QColor locked(0x11, 0x22, 0x33);
    const auto lock = compositor->session().start(
        QStringLiteral("swaylock"),
        {QStringLiteral("--no-unlock-indicator"), QStringLiteral("--color"), locked.name().mid(1)});
    EXPECT_TRUE(shows("locked",
                      [&](const Picture& picture) { return picture.differing(locked).isEmpty(); }));
    compositor->movePointerTo(background());
    compositor->movePointerBy({1, 0});
    compositor->click(background());
    runFor(std::chrono::milliseconds(300));
    EXPECT_FALSE(program->is("hovered"));
    EXPECT_FALSE(program->is("isMinimized"));
    EXPECT_TRUE(picture().differing(locked).isEmpty());
}

} // namespace
} // namespace brellowind::test
