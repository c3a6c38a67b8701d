#include "frame/EngineLibraries.h"

#include "support/TempDir.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace orvane {
namespace {

// Copies the built engines into a fresh folder, less the one named.
std::string FolderWithout(const test::TempDir& dir, Engine missing) {
    for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt}) {
        if (e == missing) continue;
        std::filesystem::copy_file(ORVANE_BIN_DIR + EngineFileName(e),
                                   dir.Path() + EngineFileName(e));
    }
    return dir.Path();
}

struct ProbeCase {
    Engine missing;
    const char* reported;
};

void PrintTo(const ProbeCase& c, std::ostream* os) {
    *os << c.reported;
}

class Probe : public ::testing::TestWithParam<ProbeCase> {
  protected:
    void SetUp() override { FreeEngines(); } // other tests may hold the engines from bin/
    void TearDown() override { FreeEngines(); }
};

TEST_P(Probe, NamesTheLibraryToReport) {
    test::TempDir dir;
    std::string module;
    EXPECT_FALSE(ProbeRequiredEngines(FolderWithout(dir, GetParam().missing), module));
    EXPECT_EQ(module, GetParam().reported);
}

INSTANTIATE_TEST_SUITE_P(Missing, Probe,
                         ::testing::Values(ProbeCase{Engine::KWCommon, "libkwcommon.so"},
                                           ProbeCase{Engine::DetFile, "libdetfile.so"},
                                           ProbeCase{Engine::Detagger, "libdetagger.so"},
                                           // doctxt is reported under the detagger's name
                                           ProbeCase{Engine::DocTxt, "libdetagger.so"}));

TEST(ProbeAll, SucceedsWithEveryLibraryPresent) {
    std::string module;
    EXPECT_TRUE(ProbeRequiredEngines(ORVANE_BIN_DIR, module));
    FreeEngines();
}

} // namespace
} // namespace orvane
