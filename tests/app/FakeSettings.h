#pragma once

namespace brellowind::test {

/// What happened in the fake library: it counts here, in the program.
struct SettingsCounts {
    int made;
    int opened;
    int gone;

    bool operator==(const SettingsCounts&) const = default;
};

extern SettingsCounts settingsCounts;

} // namespace brellowind::test
