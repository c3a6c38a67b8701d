#include "dialogs/AutoCompletePath.h"
#include "frame/ProgramFolder.h"
#include "frame/Prompter.h"
#include "support/TempDir.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace orvane {
namespace {

using namespace modAutoCompletePath;

class FakeControl : public PathControl {
  public:
    std::string Text() const override { return text; }
    void SetText(const std::string& t) override {
        text = t;
        AutoCompletePath(*this); // the Change a program's own write raises
    }
    void Select(long s, long l) override { start = s, length = l; }
    std::string text;
    long start = -1, length = -1;
};

class AutoCompleteTest : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = ORVANE_BIN_DIR;
        std::filesystem::create_directories(dir.Path() + "Program Files/Sub");
        std::filesystem::create_directories(dir.Path() + "docs");
        dir.Write("data.txt", "x");
    }
    // Types the last character of `text` as a key.
    void Type(const std::string& text) {
        control.text = text;
        KeyPress(static_cast<unsigned char>(text.back()));
        AutoCompletePath(control);
    }
    test::TempDir dir;
    FakeControl control;
};

TEST_F(AutoCompleteTest, ProposesTheRestOfAFolderNameSelected) {
    Type(dir.Path() + "Pro");
    EXPECT_EQ(control.text, dir.Path() + "Program Files/");
    EXPECT_EQ(control.start, static_cast<long>((dir.Path() + "Pro").size()));
    EXPECT_EQ(control.length, static_cast<long>(std::string("gram Files/").size()));
    Type(dir.Path() + "Program Files");
    EXPECT_EQ(control.text, dir.Path() + "Program Files/"); // just the separator
    Type(dir.Path() + "pro"); // case need not agree; what was typed stays as typed
    EXPECT_EQ(control.text, dir.Path() + "program Files/");
}

TEST_F(AutoCompleteTest, ProposesNothingWhereItMustNot) {
    for (const std::string& text : std::vector<std::string>{
             dir.Path(), dir.Path() + "d", "\\server", "http://host/pa", dir.Path() + "zz"}) {
        control.start = -1;
        Type(text);
        EXPECT_EQ(control.text, text) << text;
    }
    control.text = dir.Path() + "Pro";
    KeyPress(8); // Backspace
    AutoCompletePath(control);
    EXPECT_EQ(control.text, dir.Path() + "Pro");
    control.text = dir.Path() + "Pro"; // a paste raises Change with no printable key
    AutoCompletePath(control);
    EXPECT_EQ(control.text, dir.Path() + "Pro");
    KeyPress('~'); // above 122
    AutoCompletePath(control);
    EXPECT_EQ(control.text, dir.Path() + "Pro");
}

TEST_F(AutoCompleteTest, FoldersAreTestedByListing) {
    EXPECT_TRUE(PathExists(dir.Path() + "docs"));
    EXPECT_TRUE(PathExists(dir.Path() + "docs/"));
    EXPECT_FALSE(PathExists(dir.Path() + "data.txt"));
    EXPECT_FALSE(PathExists(""));
    EXPECT_EQ(GetCompletedPath(dir.Path() + "nothing/else"), "");
    Type(dir.Path() + "do");
    EXPECT_EQ(control.text, dir.Path() + "docs/");
    Type(dir.Path() + "da"); // a file matches: no proposal
    EXPECT_EQ(control.text, dir.Path() + "da");
}

TEST(AutoCompleteHuge, AKeystrokeDuringAScanCancelsItAndTheNewestTextWins) {
    gAppPath = ORVANE_BIN_DIR;
    test::TempDir dir;
    for (int i = 0; i < 20000; ++i)
        dir.Write("f" + std::to_string(i), "");
    std::filesystem::create_directories(dir.Path() + "zebra");
    std::filesystem::create_directories(dir.Path() + "apple");
    FakeControl control;
    // The user types "a" while the scan for "z" is still running.
    struct TypingPrompter : Prompter {
        std::function<void()> onEvents;
        void MsgBox(const std::string&, MsgIcon, const std::string&) override {}
        bool InputBox(const std::string&, const std::string&, std::string&) override {
            return false;
        }
        bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
            return false;
        }
        void DoEvents() override {
            if (auto f = std::exchange(onEvents, nullptr)) f();
        }
    };
    auto typing = std::make_shared<TypingPrompter>();
    auto previous = SetPrompter(typing);
    typing->onEvents = [&] {
        control.text = dir.Path() + "a";
        KeyPress('a');
        AutoCompletePath(control); // cancels the running scan
    };
    control.text = dir.Path() + "z";
    KeyPress('z');
    AutoCompletePath(control);
    SetPrompter(previous);
    EXPECT_EQ(control.text, dir.Path() + "apple/");
    EXPECT_FALSE(CompletionRunning());
}

} // namespace
} // namespace orvane
