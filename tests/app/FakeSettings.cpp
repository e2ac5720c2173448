#include "app/FakeSettings.h"

#include "settings/SettingsOpener.h"

namespace {

using brellowind::test::settingsCounts;

class FakeSettings : public brellowind::SettingsOpener {
public:
    FakeSettings() { ++settingsCounts.made; }
    ~FakeSettings() override { ++settingsCounts.gone; }
    void open() override { ++settingsCounts.opened; }
};

} // namespace

extern "C" brellowind::SettingsOpener* brellowindMakeSettingsOpener() {
    return new FakeSettings;
}
