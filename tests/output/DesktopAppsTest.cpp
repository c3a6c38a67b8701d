#include "output/DesktopApps.h"
#include "output/Launch.h"
#include "support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace orvane::desktop {
namespace {

// A private XDG world: config and data folders in a temp folder, and no desktop session, so that
// xdg-mime answers from these folders.
class DesktopAppsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        if (::system("command -v xdg-mime >/dev/null") != 0) GTEST_SKIP() << "xdg-utils missing";
        for (const char* session : {"XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION",
                                    "GNOME_DESKTOP_SESSION_ID", "XDG_MENU_PREFIX"})
            ::unsetenv(session);
        for (const char* name : kXdgDirs)
            if (const char* value = std::getenv(name)) saved.emplace_back(name, value);
        std::filesystem::create_directories(dir.Path() + "config");
        std::filesystem::create_directories(dir.Path() + "data/applications");
        ::setenv("XDG_CONFIG_HOME", (dir.Path() + "config").c_str(), 1);
        ::setenv("XDG_CONFIG_DIRS", (dir.Path() + "nowhere").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (dir.Path() + "data").c_str(), 1);
        ::setenv("XDG_DATA_DIRS", (dir.Path() + "nowhere").c_str(), 1);
    }
    // The MIME database of the system must be found again by the tests that follow.
    void TearDown() override {
        for (const char* name : kXdgDirs)
            ::unsetenv(name);
        for (const auto& [name, value] : saved)
            ::setenv(name.c_str(), value.c_str(), 1);
    }
    void Entry(const std::string& id, const std::string& exec) {
        dir.Write("data/applications/" + id,
                  "[Desktop Entry]\nType=Application\nName=X\nExec=" + exec + "\n");
    }
    static constexpr const char* kXdgDirs[] = {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS",
                                               "XDG_DATA_HOME", "XDG_DATA_DIRS"};
    std::vector<std::pair<std::string, std::string>> saved;
    test::TempDir dir;
};

TEST_F(DesktopAppsTest, TheDesktopNamesTheDefaultAndItsEntryMustExist) {
    EXPECT_EQ(DefaultApplication("text/html"), "");
    dir.Write("config/mimeapps.list", "[Default Applications]\ntext/html=gone.desktop\n"
                                      "text/plain=edit.desktop\n");
    Entry("edit.desktop", "editor %F");
    EXPECT_EQ(DefaultApplication("text/plain"), "edit.desktop");
    EXPECT_EQ(DefaultApplication("text/html"), ""); // named, but there is no such entry
    dir.Write("data/applications/mimeinfo.cache", "[MIME Cache]\ntext/css=edit.desktop;\n");
    EXPECT_EQ(DefaultApplication("text/css"), "edit.desktop");
}

TEST_F(DesktopAppsTest, NotepadSaysNoWhenNothingStarted) {
    EXPECT_FALSE(LoadFileInNotepad("/etc/hostname")); // no text editor at all
    dir.Write("config/mimeapps.list", "[Default Applications]\ntext/plain=gone.desktop\n");
    Entry("gone.desktop", dir.Path() + "no-such-program %f");
    EXPECT_FALSE(LoadFileInNotepad("/etc/hostname"));
    Entry("gone.desktop", "true %f");
    EXPECT_TRUE(LoadFileInNotepad("/etc/hostname"));
}

TEST_F(DesktopAppsTest, ExecFieldCodesAreExpandedWithoutAShell) {
    Entry("a.desktop", R"("/opt/my app/run" --new %U --icon %i 100%%)");
    EXPECT_EQ(CommandFor("a.desktop", "/tmp/it's \"here\".html"),
              (std::vector<std::string>{"/opt/my app/run", "--new", "/tmp/it's \"here\".html",
                                        "--icon", "100%"}));
    Entry("b.desktop", "viewer");
    EXPECT_EQ(CommandFor("b.desktop", "-x.html"), (std::vector<std::string>{"viewer", "-x.html"}));
    EXPECT_TRUE(CommandFor("missing.desktop", "f").empty());
}

TEST(MimeTypes, ByNameThenByContent) {
    test::TempDir dir;
    EXPECT_EQ(MimeTypeOfPath("/a/b.HTML"), "text/html");
    EXPECT_EQ(MimeTypeOfPath("notes.txt"), "text/plain");
    // A downloaded page keeps the temporary extension: its content says what it is.
    EXPECT_EQ(MimeTypeOfPath(dir.Write("htmA1.tmp", "<!DOCTYPE html><html><body>x")), "text/html");
    EXPECT_EQ(MimeTypeOfPath(dir.Write("file", std::string("\x01\x02\x00\xff", 4))),
              "application/octet-stream");
}

} // namespace
} // namespace orvane::desktop
