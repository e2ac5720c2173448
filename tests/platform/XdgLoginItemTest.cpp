// SPDX-License-Identifier: MIT

#include "platform/linux/XdgLoginItem.h"

#include "platform/linux/DesktopEntry.h"
#include "support/TemporaryFolder.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace brellowind::platform {
namespace {

namespace fs = std::filesystem;
using Status = LoginItem::Status;
using testing::HasSubstr;
using testing::IsEmpty;

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(const fs::path& path, const std::string& contents) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << contents;
}

void makeProgram(const fs::path& path) {
    write(path, "#!/bin/sh\n");
    fs::permissions(path, fs::perms::owner_all);
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    return names;
}

/// Simulates a full disk with a file size limit.
class FullDisk {
public:
    FullDisk() : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &oldLimit_);
        rlimit limit = oldLimit_;
        limit.rlim_cur = 0;
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &oldLimit_);
        std::signal(SIGXFSZ, oldHandler_);
    }

private:
    void (*oldHandler_)(int);
    rlimit oldLimit_{};
};

/// Makes a folder read-only. Drops the superuser's privileges meanwhile.
class ReadOnlyFolder {
public:
    explicit ReadOnlyFolder(const fs::path& folder) : folder_(folder), user_(::geteuid()) {
        fs::permissions(folder_, readAndEnter);
        if (user_ == 0 && ::seteuid(nobody) != 0)
            std::abort();
    }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;
    ~ReadOnlyFolder() {
        if (::seteuid(user_) != 0)
            std::abort();
        fs::permissions(folder_, fs::perms::owner_all);
    }

private:
    static constexpr uid_t nobody = 65534;
    static constexpr auto readAndEnter = static_cast<fs::perms>(0555);

    fs::path folder_;
    uid_t user_;
};

class XdgLoginItemTest : public testing::Test {
protected:
    XdgLoginItemTest() {
        fs::permissions(folder.path(), static_cast<fs::perms>(0755));
        makeProgram(program);
    }

    XdgLoginItem item() const { return {config, program, searchPath}; }

    Status statusWith(const std::string& lines) const {
        write(entry, "[Desktop Entry]\nType=Application\nName=Brellowind\n" + lines);
        return item().status();
    }

    test::TemporaryFolder folder;
    fs::path config = folder.path() / "config";
    fs::path entry = config / "autostart" / "brellowind.desktop";
    fs::path program = folder.path() / "bin" / "brellowind";
    std::string searchPath = "/nowhere";
};

TEST_F(XdgLoginItemTest, IsNotRegisteredWithoutAnEntry) {
    EXPECT_EQ(item().status(), Status::notRegistered);
    EXPECT_FALSE(fs::exists(config)); // reading creates nothing
}

TEST_F(XdgLoginItemTest, RegistrationEnablesIt) {
    EXPECT_EQ(item().registerItem(), std::nullopt);
    EXPECT_EQ(item().status(), Status::enabled);
    EXPECT_EQ(contentsOf(entry), "[Desktop Entry]\n"
                                 "Type=Application\n"
                                 "Name=Brellowind\n"
                                 "Comment=Lyrics that live in your notch\n"
                                 "Exec=" +
                                     program.native() + "\nTryExec=" + program.native() +
                                     "\n"
                                     "Terminal=false\n"
                                     "X-GNOME-Autostart-enabled=true\n");
}

TEST_F(XdgLoginItemTest, RegistrationLeavesNothingButTheEntry) {
    item().registerItem();
    EXPECT_THAT(namesIn(entry.parent_path()), testing::ElementsAre("brellowind.desktop"));
}

TEST_F(XdgLoginItemTest, MakesMissingFoldersForTheUserAlone) {
    config = folder.path() / "home" / ".config";
    EXPECT_EQ(item().registerItem(), std::nullopt);
    EXPECT_EQ(fs::status(config / "autostart").permissions(), fs::perms::owner_all);
    EXPECT_EQ(fs::status(config).permissions(), fs::perms::owner_all);
}

TEST_F(XdgLoginItemTest, UnregistrationRemovesTheEntry) {
    item().registerItem();
    EXPECT_EQ(item().unregisterItem(), std::nullopt);
    EXPECT_EQ(item().status(), Status::notRegistered);
    EXPECT_THAT(namesIn(entry.parent_path()), IsEmpty());
}

TEST_F(XdgLoginItemTest, RegisteringAgainKeepsAnEntryThatIsEnabled) {
    EXPECT_EQ(statusWith("Exec=" + program.native() + " --mine\n"), Status::enabled);
    const auto before = contentsOf(entry);
    EXPECT_EQ(item().registerItem(), std::nullopt);
    EXPECT_EQ(contentsOf(entry), before);
}

TEST_F(XdgLoginItemTest, UnregisteringKeepsAnEntryThatDoesNotStartThisProgram) {
    EXPECT_EQ(item().unregisterItem(), std::nullopt);
    for (const std::string lines : {"Exec=/bin/sh\n", "Hidden=true\n"}) {
        statusWith(lines);
        EXPECT_EQ(item().unregisterItem(), std::nullopt);
        EXPECT_THAT(contentsOf(entry), HasSubstr(lines));
    }
}

TEST_F(XdgLoginItemTest, RegistrationReplacesAnEntryThatDoesNotStartThisProgram) {
    const auto exec = "Exec=" + program.native() + "\n";
    for (const auto& lines :
         {exec + "Hidden=true\n", exec + "X-GNOME-Autostart-enabled=false\n",
          std::string("Exec=/opt/elsewhere/brellowind\n"), std::string("nonsense")}) {
        EXPECT_EQ(statusWith(lines), Status::notRegistered) << lines;
        EXPECT_EQ(item().registerItem(), std::nullopt);
        EXPECT_EQ(item().status(), Status::enabled) << lines;
    }
}

TEST_F(XdgLoginItemTest, AHiddenOrSwitchedOffEntryIsNotEnabled) {
    const auto exec = "Exec=" + program.native() + "\n";
    EXPECT_EQ(statusWith(exec), Status::enabled);
    EXPECT_EQ(statusWith(exec + "Hidden=false\nX-GNOME-Autostart-enabled=true\n"), Status::enabled);
    EXPECT_EQ(statusWith(exec + "Hidden=true\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + " Hidden = true \n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "Hidden=1\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "X-GNOME-Autostart-enabled=false\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "X-GNOME-Autostart-enabled=0\r\n"), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, OnlyKeysOfTheMainGroupCount) {
    const auto exec = "Exec=" + program.native() + "\n";
    EXPECT_EQ(statusWith(exec + "# Hidden=true\n#Hidden=true\nHidden[de]=true\n"), Status::enabled);
    EXPECT_EQ(statusWith(exec + "[Desktop Action x]\nHidden=true\nExec=/bin/sh\n"),
              Status::enabled);
    write(entry, "Type=Application\n" + exec);
    EXPECT_EQ(item().status(), Status::notRegistered);
    write(entry, "[Other]\nType=Application\n" + exec);
    EXPECT_EQ(item().status(), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, AnEntryThatIsNoApplicationIsNotEnabled) {
    write(entry, "[Desktop Entry]\nType=Link\nExec=" + program.native() + "\n");
    EXPECT_EQ(item().status(), Status::notRegistered);
    write(entry, "[Desktop Entry]\nExec=" + program.native() + "\n");
    EXPECT_EQ(item().status(), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, ExecNamesThisProgramByItsPathInAnySpelling) {
    const auto link = folder.path() / "link";
    fs::create_symlink(program, link);
    const auto dotted = (folder.path() / "bin" / ".." / "bin" / "brellowind").native();
    EXPECT_EQ(statusWith("Exec=\"" + program.native() + "\" --quiet %U\n"), Status::enabled);
    EXPECT_EQ(statusWith("Exec=" + dotted + "\n"), Status::enabled);
    EXPECT_EQ(statusWith("Exec=" + link.native() + "\n"), Status::enabled);
    EXPECT_EQ(statusWith("Exec=" + program.native() + "x\n"), Status::notRegistered);
    EXPECT_EQ(statusWith("Exec=env " + program.native() + "\n"), Status::notRegistered);
    EXPECT_EQ(statusWith("Exec=\"" + program.native() + "\n"), Status::notRegistered);
    EXPECT_EQ(statusWith("Exec=\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(""), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, ABareNameCountsWhenTheSearchPathLeadsToThisProgram) {
    EXPECT_EQ(statusWith("Exec=brellowind\n"), Status::notRegistered);
    searchPath = "/nowhere::" + program.parent_path().native() + ":/bin";
    EXPECT_EQ(statusWith("Exec=brellowind --quiet\n"), Status::enabled);
    EXPECT_EQ(statusWith("Exec=bin/brellowind\n"), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, ABareNameMeansTheFirstProgramOnTheSearchPath) {
    const auto first = folder.path() / "first" / "brellowind";
    searchPath = first.parent_path().native() + ":" + program.parent_path().native();
    write(first, "not executable");
    EXPECT_EQ(statusWith("Exec=brellowind\n"), Status::enabled);
    makeProgram(first);
    EXPECT_EQ(statusWith("Exec=brellowind\n"), Status::notRegistered);
}

TEST_F(XdgLoginItemTest, AnEntryWhoseTryExecIsNotInstalledIsNotEnabled) {
    const auto exec = "Exec=" + program.native() + "\n";
    EXPECT_EQ(statusWith(exec + "TryExec=" + program.native() + "\n"), Status::enabled);
    EXPECT_EQ(statusWith(exec + "TryExec=/nowhere/brellowind\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "TryExec=brellowind\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "TryExec=" + config.native() + "\n"), Status::notRegistered);
    EXPECT_EQ(statusWith(exec + "TryExec=\\q\n"), Status::notRegistered);
    searchPath = program.parent_path();
    EXPECT_EQ(statusWith(exec + "TryExec=brellowind\n"), Status::enabled);
}

TEST_F(XdgLoginItemTest, SurvivesAnyPathThatTheFormatCanHold) {
    for (const std::string name :
         {"two words", "quo\"te", "apo'strophe", "back\\slash", "dollar$HOME", "tick`s`",
          "per%cent", "per%%cent %U", "new\nline", "tab\ttab", "a;b&c|d<e>f~g*h?i#j(k)", "ünï♪",
          "trailing ", "\\", "%"}) {
        program = folder.path() / name / name;
        makeProgram(program);
        EXPECT_EQ(item().registerItem(), std::nullopt) << name;
        EXPECT_EQ(item().status(), Status::enabled) << name;
        auto keys = DesktopEntry::parse(contentsOf(entry));
        EXPECT_EQ(DesktopEntry::execProgram(keys["Exec"]), program.native());
        EXPECT_EQ(DesktopEntry::unescape(keys["TryExec"]), program.native());
        EXPECT_EQ(item().unregisterItem(), std::nullopt) << name;
    }
}

TEST_F(XdgLoginItemTest, RefusesAPathThatTheFormatCannotHold) {
    for (const std::string name : {"a=b", "not\xFFtext"}) {
        program = folder.path() / name;
        makeProgram(program);
        EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("cannot name the program"));
    }
    program = "brellowind";
    EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("cannot name the program"));
    EXPECT_FALSE(fs::exists(config));
}

TEST_F(XdgLoginItemTest, RefusesAProgramThatIsNotThere) {
    fs::remove(program);
    EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("there is no program at"));
    EXPECT_FALSE(fs::exists(config));
}

TEST_F(XdgLoginItemTest, AFileInThePlaceOfAFolderFailsAndStays) {
    write(config, "a file");
    EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("Not a directory"));
    EXPECT_EQ(item().status(), Status::notRegistered);
    EXPECT_EQ(item().unregisterItem(), std::nullopt);
    EXPECT_EQ(contentsOf(config), "a file");
}

TEST_F(XdgLoginItemTest, AFolderInThePlaceOfTheEntryFailsAndStays) {
    fs::create_directories(entry);
    EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("refers to a directory"));
    EXPECT_EQ(item().status(), Status::notRegistered);
    EXPECT_EQ(item().unregisterItem(), std::nullopt);
    EXPECT_THAT(namesIn(entry.parent_path()), testing::ElementsAre("brellowind.desktop"));
    EXPECT_TRUE(fs::is_directory(entry));
}

TEST_F(XdgLoginItemTest, AFullDiskFailsAndLeavesTheOldEntryAsItWas) {
    statusWith("Hidden=true\n");
    const auto before = contentsOf(entry);
    auto registration = item();
    std::optional<std::string> error;
    {
        const FullDisk full;
        error = registration.registerItem();
    }
    EXPECT_THAT(error.value_or(""), HasSubstr(entry.native()));
    EXPECT_EQ(contentsOf(entry), before);
    EXPECT_THAT(namesIn(entry.parent_path()), testing::ElementsAre("brellowind.desktop"));
}

TEST_F(XdgLoginItemTest, AReadOnlyFolderFailsAndLeavesTheOldEntryAsItWas) {
    statusWith("Hidden=true\n");
    const auto before = contentsOf(entry);
    const ReadOnlyFolder readOnly(entry.parent_path());
    EXPECT_THAT(item().registerItem().value_or(""), HasSubstr("Permission denied"));
    EXPECT_EQ(contentsOf(entry), before);
    EXPECT_THAT(namesIn(entry.parent_path()), testing::ElementsAre("brellowind.desktop"));
}

TEST_F(XdgLoginItemTest, AnEntryThatCannotBeRemovedStaysEnabled) {
    statusWith("Exec=" + program.native() + "\n");
    const ReadOnlyFolder readOnly(entry.parent_path());
    EXPECT_THAT(item().unregisterItem().value_or(""), HasSubstr("Permission denied"));
    EXPECT_EQ(item().status(), Status::enabled);
}

TEST_F(XdgLoginItemTest, ReplacesALinkAndNotWhatItPointsTo) {
    const auto target = folder.path() / "target.desktop";
    write(target, "[Desktop Entry]\nHidden=true\n");
    fs::create_directories(entry.parent_path());
    fs::create_symlink(target, entry);
    EXPECT_EQ(item().registerItem(), std::nullopt);
    EXPECT_EQ(contentsOf(target), "[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(item().status(), Status::enabled);
}

TEST(DesktopEntryFormat, QuotesOnlyWhatNeedsIt) {
    EXPECT_EQ(DesktopEntry::execValue("/usr/bin/brellowind"), "/usr/bin/brellowind");
    EXPECT_EQ(DesktopEntry::execValue("/a b/c"), R"("/a b/c")");
    EXPECT_EQ(DesktopEntry::execValue("/50%"), "/50%%");
    EXPECT_EQ(DesktopEntry::execValue("/$x"), R"("/\\$x")");
    EXPECT_EQ(DesktopEntry::execValue("/`"), R"("/\\`")");
    EXPECT_EQ(DesktopEntry::execValue("/\""), R"("/\\"")");
    EXPECT_EQ(DesktopEntry::execValue("/\\"), R"("/\\\\")");
}

TEST(DesktopEntryFormat, ReadsTheProgramOfACommand) {
    EXPECT_EQ(DesktopEntry::execProgram("  /a  b"), "/a");
    EXPECT_EQ(DesktopEntry::execProgram(R"("/a b" c)"), "/a b");
    EXPECT_EQ(DesktopEntry::execProgram(R"("/a\\$b\\\\c")"), R"(/a$b\c)");
    EXPECT_EQ(DesktopEntry::execProgram("/a\\sb"), "/a");
    EXPECT_EQ(DesktopEntry::execProgram("/100%%"), "/100%");
}

TEST(DesktopEntryFormat, RefusesACommandThatBreaksItsRules) {
    for (const auto* value : {"", " ", "\"\"", "\"/a", "\"/a\"b", "%f", "/a%", "/a%b", "/a\\",
                              "/a\\q", "/it's", "/a\\\\b", "/a\"b\"", "/a;b", "~/a"})
        EXPECT_EQ(DesktopEntry::execProgram(value), std::nullopt) << value;
}

} // namespace
} // namespace brellowind::platform
