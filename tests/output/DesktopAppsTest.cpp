#include "output/DesktopApps.h"
#include "support/TempDir.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace orvane::desktop {
namespace {

// A private XDG world: config and data folders in a temp folder.
class DesktopAppsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directories(dir.Path() + "config");
        std::filesystem::create_directories(dir.Path() + "data/applications");
        ::setenv("XDG_CONFIG_HOME", (dir.Path() + "config").c_str(), 1);
        ::setenv("XDG_CONFIG_DIRS", (dir.Path() + "nowhere").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (dir.Path() + "data").c_str(), 1);
        ::setenv("XDG_DATA_DIRS", (dir.Path() + "nowhere").c_str(), 1);
    }
    void Entry(const std::string& id, const std::string& exec) {
        dir.Write("data/applications/" + id,
                  "[Desktop Entry]\nType=Application\nName=X\nExec=" + exec + "\n");
    }
    test::TempDir dir;
};

TEST_F(DesktopAppsTest, DefaultsComeFromMimeappsAndNeedAnEntry) {
    EXPECT_EQ(DefaultApplication("text/html"), "");
    dir.Write("config/mimeapps.list",
              "[Default Applications]\ntext/html=gone.desktop;web.desktop;\n"
              "text/plain=edit.desktop\n");
    Entry("edit.desktop", "editor %F");
    EXPECT_EQ(DefaultApplication("text/plain"), "edit.desktop");
    EXPECT_EQ(DefaultApplication("text/html"), ""); // its first choice has no entry
    dir.Write("data/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=edit.desktop;\n");
    EXPECT_EQ(DefaultApplication("text/html"), "edit.desktop");
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

TEST(MimeTypes, ByExtension) {
    EXPECT_EQ(MimeTypeOfPath("/a/b.HTML"), "text/html");
    EXPECT_EQ(MimeTypeOfPath("/tmp/htmA1.tmp"), "text/html");
    EXPECT_EQ(MimeTypeOfPath("notes.txt"), "text/plain");
    EXPECT_EQ(MimeTypeOfPath("/a.d/file"), "application/octet-stream");
}

} // namespace
} // namespace orvane::desktop
