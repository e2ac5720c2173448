// SPDX-License-Identifier: MIT

#include "settings/SettingsOpener.h"

namespace {

/// Logs all calls.
class FakeSettings : public brellowind::SettingsOpener {
public:
    explicit FakeSettings(brellowind::platform::Log& log) : log_(log) { log_.write("made"); }
    ~FakeSettings() override { log_.write("gone"); }
    void open() override { log_.write("opened"); }

private:
    brellowind::platform::Log& log_;
};

} // namespace

extern "C" brellowind::SettingsOpener*
brellowindMakeSettingsOpener(const brellowind::SettingsServices& services) {
    return new FakeSettings(services.log);
}
