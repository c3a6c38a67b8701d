// A bad value in the settings file, read by the real window: its box shows, and everything else
// the user set survives the next quit.
#include "compare/FileDiffEngine.h"
#include "frame/ProgramFolder.h"
#include "results/frmFileDiffs.h"
#include "settings/IniFileName.h"
#include "settings/Session.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

namespace orvane::test {
namespace {

class BadFontSize : public ::testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        gAppPath = ORVANE_BIN_DIR; // the line differ from the build, the settings file in dir
        fileDiff = std::make_unique<FileDiffEngine>();
        gAppPath = dir.Path();
        SetProgramIniFileName("orvane.ini");
    }
    void TearDown() override { SetProgramIniFileName(""); }
    std::string Ini() const {
        std::ifstream in(dir.Path() + "orvane.ini", std::ios::binary);
        std::ostringstream s;
        s << in.rdbuf();
        return s.str();
    }

    TempDir dir;
    ScopedRecordingPrompter prompter;
    Session session;
    std::unique_ptr<FileDiffEngine> fileDiff;
};

TEST_P(BadFontSize, ShowsTheBoxAndKeepsTheOtherSettings) {
    dir.Write("orvane.ini", std::string("[Compare]\r\nIgnoreCase=True\r\n"
                                        "[Grids]\r\nFontSize=") +
                                GetParam() +
                                "\r\n[Text Extraction]\r\nLimitLineLength=True\r\n"
                                "MaxNumCharsPerLine=120\r\n"
                                "[Miscellaneous]\r\nHTMLEditorFileSpec=/usr/bin/gedit\r\n");
    {
        frmFileDiffs window(session, *fileDiff);
        window.Form_Load("");
        ASSERT_EQ(prompter->boxes.size(), 1u);
        EXPECT_EQ(prompter->boxes[0].title,
                  "Unexpected Error in modIniFile.ReadProgramOptionsFromIniFile");
        EXPECT_TRUE(session.ExtractionOptions.LimitLineLength);
        EXPECT_EQ(session.ExtractionOptions.MaxNumCharsPerLine, 120);
        EXPECT_EQ(session.HTMLEditorFileSpec, "/usr/bin/gedit");
        window.close(); // the quit saves the options
    }
    const std::string ini = Ini();
    for (const char* line : {"IgnoreCase=True\r\n", "LimitLineLength=True\r\n",
                             "MaxNumCharsPerLine=120\r\n", "HTMLEditorFileSpec=/usr/bin/gedit\r\n"})
        EXPECT_NE(ini.find(line), std::string::npos) << line << " lost:\n" << ini;
}

INSTANTIATE_TEST_SUITE_P(Values, BadFontSize, ::testing::Values("0", "nan", "99999"),
                         [](const auto& info) { return std::string(info.param); });

} // namespace
} // namespace orvane::test
