#include "tests/ui/DriverFixture.h"

#include <QComboBox>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace orvane::test {
namespace {

// A desktop whose text editor and HTML editor are a script that notes what it was given.
class ViewersTest : public DriverTest {
  protected:
    void SetUp() override {
        DriverTest::SetUp();
        script = dir.Write("viewer.sh", "#!/bin/sh\nfor a in \"$@\"; do cat \"$a\" > \"" +
                                            dir.Path() + "seen.txt\"; done\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        std::filesystem::create_directories(dir.Path() + "data/applications");
        dir.Write("data/applications/viewer.desktop",
                  "[Desktop Entry]\nType=Application\nName=V\nExec=" + script + " %f\n");
        dir.Write("mimeapps.list", "[Default Applications]\ntext/plain=viewer.desktop\n");
        ::setenv("XDG_CONFIG_HOME", dir.Path().c_str(), 1);
        ::setenv("XDG_DATA_HOME", (dir.Path() + "data").c_str(), 1);
        ::setenv("XDG_DATA_DIRS", (dir.Path() + "none").c_str(), 1);
    }
    // What the viewer was shown, waiting a little for it to start.
    std::string Seen() {
        const std::string file = dir.Path() + "seen.txt";
        for (int i = 0; i < 100 && !std::filesystem::exists(file); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        std::ifstream in(file);
        std::stringstream s;
        s << in.rdbuf();
        return s.str();
    }
    void Box(Side side, const std::string& text) {
        (side == Side::Original ? window->OriginalFileBox() : window->RevisedFileBox())
            ->setEditText(QString::fromStdString(text));
    }
    std::string script;
};

TEST_F(ViewersTest, TextContentShowsThePagesTextInTheTextEditor) {
    Box(Side::Revised, dir.Write("page.html", "<h1>Menu</h1><script>x()</script><p>Bread</p>"));
    window->ViewTextContent(Side::Revised);
    const std::string seen = Seen();
    EXPECT_NE(seen.find("Bread"), std::string::npos) << seen;
    EXPECT_EQ(seen.find("<p>"), std::string::npos);
    EXPECT_EQ(seen.find("x()"), std::string::npos);
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(ViewersTest, SourceGoesToTheChosenEditorAsItsOneArgument) {
    session.HTMLEditorFileSpec = script;
    Box(Side::Original, dir.Write("it's \"quoted\".html", "<p>source</p>"));
    window->ViewSourceCode(Side::Original);
    EXPECT_EQ(Seen(), "<p>source</p>");
}

TEST_F(ViewersTest, RefusalsAtTheCommonEntry) {
    Box(Side::Original, "www.example.org");
    window->ViewInBrowser(Side::Original);
    Box(Side::Revised, "");
    window->ViewSourceCode(Side::Revised);
    Box(Side::Original, dir.Write("pic.dat", std::string("\x01\x02\x00\xff", 4)));
    window->ViewTextContent(Side::Original);
    ASSERT_EQ(prompter->boxes.size(), 3u);
    EXPECT_EQ(prompter->boxes[0].title, "Invalid URL Format");
    EXPECT_EQ(prompter->boxes[1].text, "Revised file is not an existing file.");
    EXPECT_EQ(prompter->boxes[2].title, "View File in Notepad");
    EXPECT_EQ(prompter->boxes[2].text, "Unable to show the file in the Notepad.");
}

TEST_F(ViewersTest, AWebPageSourceComesWithTheReminderUnlessItIsOff) {
    session.HTMLEditorFileSpec = script;
    Box(Side::Original, "file://" + dir.Write("remote.html", "<p>page</p>"));
    window->ViewSourceCode(Side::Original);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Internet Source Reminder");
    session.ViewOptions.ShowInternetSourceReminder = false;
    window->ViewSourceCode(Side::Original);
    EXPECT_EQ(prompter->boxes.size(), 1u);
}

} // namespace
} // namespace orvane::test
