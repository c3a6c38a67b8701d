#include "settings/RecentFiles.h"
#include "frame/ProgramFolder.h"
#include "settings/IniFile.h"
#include "settings/IniFileName.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

class RecentFilesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        gAppPath = dir.Path();
        SetProgramIniFileName("recent.ini");
    }
    void TearDown() override { SetProgramIniFileName(""); }
    void Store(Side side, int place, const std::string& value) {
        CIniFile ini;
        ini.Name("recent.ini");
        ini.Section(side == Side::Original ? "OriginalFiles" : "RevisedFiles");
        ini.Key("File" + std::to_string(place));
        ini.SetStringValue(value);
    }
    std::vector<std::string> Numbered(int count) {
        std::vector<std::string> v;
        for (int i = 1; i <= count; ++i)
            v.push_back("f" + std::to_string(i));
        return v;
    }
    void Fill(int count) {
        for (int i = 1; i <= count; ++i)
            Store(Side::Original, i, "f" + std::to_string(i));
    }
    test::TempDir dir;
    test::ScopedRecordingPrompter prompter;
};

TEST_F(RecentFilesTest, FirstRunHasNothingAndTheSidesAreIndependent) {
    EXPECT_TRUE(ReadRecentFiles(Side::Original).empty());
    PushRecentFile(Side::Revised, "b.html");
    EXPECT_TRUE(ReadRecentFiles(Side::Original).empty());
    EXPECT_EQ(ReadRecentFiles(Side::Revised), std::vector<std::string>{"b.html"});
    EXPECT_TRUE(prompter->boxes.empty());
}

TEST_F(RecentFilesTest, ANewInputPushesTheLastPlaceOff) {
    Fill(20);
    PushRecentFile(Side::Original, "new");
    std::vector<std::string> expected{"new"};
    for (auto& f : Numbered(19))
        expected.push_back(f);
    EXPECT_EQ(ReadRecentFiles(Side::Original), expected);
}

TEST_F(RecentFilesTest, AKnownInputMovesUpInItsNewCase) {
    Fill(20);
    PushRecentFile(Side::Original, "F7");
    std::vector<std::string> expected{"F7"};
    for (auto& f : Numbered(20))
        if (f != "f7") expected.push_back(f);
    EXPECT_EQ(ReadRecentFiles(Side::Original), expected);
    PushRecentFile(Side::Original, "F7");
    EXPECT_EQ(ReadRecentFiles(Side::Original), expected);
}

TEST_F(RecentFilesTest, EmptyPlacesAndTheFillerAreSkippedOnReading) {
    Store(Side::Original, 1, "a");
    Store(Side::Original, 3, "Enter Original HTML file here");
    Store(Side::Original, 4, "b");
    EXPECT_EQ(ReadRecentFiles(Side::Original), (std::vector<std::string>{"a", "b"}));
    PushRecentFile(Side::Original, "c");
    EXPECT_EQ(ReadRecentFiles(Side::Original), (std::vector<std::string>{"c", "a", "b"}));
}

} // namespace
} // namespace orvane
