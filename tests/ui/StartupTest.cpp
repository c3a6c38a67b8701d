#include "app/modDiff.h"
#include "frame/EngineLibraries.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace orvane::test {
namespace {

void CopyEngines(const TempDir& dir, Engine missing) {
    for (Engine e :
         {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt, Engine::LineDiff})
        if (e != missing)
            std::filesystem::copy_file(ORVANE_BIN_DIR + EngineFileName(e),
                                       dir.Path() + EngineFileName(e));
}

class Startup : public ::testing::TestWithParam<std::pair<Engine, const char*>> {
  protected:
    void SetUp() override { FreeEngines(); }
    void TearDown() override { FreeEngines(); }
};

TEST_P(Startup, AMissingEngineGivesTheLibraryBox) {
    TempDir dir;
    ScopedRecordingPrompter prompter;
    CopyEngines(dir, GetParam().first);
    Program program;
    EXPECT_FALSE(program.Main(dir.Path(), ""));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Problem with a required DLL/OCX");
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Critical);
    EXPECT_EQ(prompter->boxes[0].text,
              std::string("Module Name: ") + GetParam().second +
                  "\r\n\r\nOne of the DLLs or OCXs required by Orvane is not properly installed."
                  "\r\nPlease uninstall Orvane from Control Panel --> Add/Remove Programs then"
                  "\r\nreinstall Orvane.\r\n");
}

INSTANTIATE_TEST_SUITE_P(Engines, Startup,
                         ::testing::Values(std::pair{Engine::KWCommon, "libkwcommon.so"},
                                           std::pair{Engine::DocTxt, "libdetagger.so"},
                                           std::pair{Engine::LineDiff, "liblinediff.so"}),
                         [](const auto& info) {
                             std::string name = info.param.second;
                             return name.substr(3, name.size() - 6); // "libX.so" -> "X"
                         });

} // namespace
} // namespace orvane::test
