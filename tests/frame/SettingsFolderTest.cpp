#include "frame/SettingsFolder.h"
#include "frame/ErrorReporter.h"
#include "frame/ProgramFolder.h"
#include "settings/IniFile.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>

namespace orvane::test {
namespace {

namespace fs = std::filesystem;

// Sets an environment variable for one test and puts the old value back.
class ScopedEnv {
  public:
    ScopedEnv(const char* name, std::optional<std::string> value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        value ? setenv(name, value->c_str(), 1) : unsetenv(name);
    }
    ~ScopedEnv() { old_ ? setenv(name_, old_->c_str(), 1) : unsetenv(name_); }

  private:
    const char* name_;
    std::optional<std::string> old_;
};

// A program folder as `cmake --install` lays it out: PREFIX/lib/orvane beside the desktop entry.
std::string InstalledProgramFolder(const TempDir& prefix) {
    fs::create_directories(prefix.Path() + "lib/orvane");
    fs::create_directories(prefix.Path() + "share/applications");
    prefix.Write(std::string("share/applications/") + kDesktopEntryName, "[Desktop Entry]\n");
    return prefix.Path() + "lib/orvane/";
}

TEST(SettingsFolder, APortableFolderKeepsItsSettingsBesideTheProgram) {
    TempDir program, home;
    ScopedEnv h("HOME", home.Path());
    EXPECT_EQ(SettingsFolderFor(program.Path()), program.Path());
    // without the final slash the answer still ends in one
    const std::string bare = program.Path().substr(0, program.Path().size() - 1);
    EXPECT_EQ(SettingsFolderFor(bare), program.Path());
}

struct UserFolderCase {
    const char* name;
    std::optional<std::string> xdg; // "@" stands for a folder of the test's own
    const char* expectedUnder;      // "home" or "xdg"
};

class UserFolder : public ::testing::TestWithParam<UserFolderCase> {};

TEST_P(UserFolder, AnInstalledOrUnwritableProgramUsesTheUserConfigurationFolder) {
    TempDir prefix, home, xdg;
    ScopedEnv h("HOME", home.Path());
    const auto& c = GetParam();
    ScopedEnv x("XDG_CONFIG_HOME", c.xdg && *c.xdg == "@" ? std::optional(xdg.Path()) : c.xdg);
    const std::string expected = std::string(c.expectedUnder) == "xdg"
                                     ? xdg.Path() + "orvane/"
                                     : home.Path() + ".config/orvane/";
    EXPECT_EQ(SettingsFolderFor(InstalledProgramFolder(prefix)), expected);
    EXPECT_EQ(SettingsFolderFor("/nonexistent/orvane/"), expected); // not writable
}

INSTANTIATE_TEST_SUITE_P(Xdg, UserFolder,
                         ::testing::Values(UserFolderCase{"XdgSet", "@", "xdg"},
                                           UserFolderCase{"XdgUnset", std::nullopt, "home"},
                                           UserFolderCase{"XdgEmpty", std::string(), "home"},
                                           UserFolderCase{"XdgRelativeIsIgnored",
                                                          std::string("rel/cfg"), "home"}),
                         [](const auto& info) { return std::string(info.param.name); });

// Both files of an installed program go to the user's folder, which the first save makes.
TEST(SettingsFolder, TheIniFileAndTheErrorDetailsFollowTheRoutine) {
    TempDir prefix, xdg;
    ScopedEnv x("XDG_CONFIG_HOME", xdg.Path());
    ScopedRecordingPrompter prompter;
    const std::string saved = gAppPath;
    gAppPath = InstalledProgramFolder(prefix);
    ASSERT_FALSE(fs::exists(xdg.Path() + "orvane"));
    {
        CIniFile ini;
        ini.Name("orvane.ini");
        ini.Section("Compare");
        ini.Key("IgnoreCase");
        ini.SetStringValue("True");
    }
    EXPECT_TRUE(fs::exists(xdg.Path() + "orvane/orvane.ini"));
    ReportUnexpectedError("SettingsFolderTest", "more detail", ErrorInfo{5, "Invalid", 0});
    EXPECT_TRUE(fs::exists(xdg.Path() + "orvane/ERR_DETAIL.TXT"));
    EXPECT_TRUE(fs::is_empty(gAppPath)); // nothing written into the installed folder
    {
        CIniFile ini;
        ini.Name("orvane.ini");
        ini.Section("Compare");
        ini.Key("IgnoreCase");
        EXPECT_EQ(ini.GetStringValue("False"), "True");
    }
    gAppPath = saved;
}

} // namespace
} // namespace orvane::test
