// ConvertHTMLToText against a scripted stub library (policies, call order, error codes) and
// against the real engine.
#include "intake/Detagger.h"

#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "support/RecordingPrompter.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace orvane {
namespace {

const std::string kStubFolder = STUB_ENGINE_DIR;

// Points the program's folder at `folder` for one test, loading engines anew from there.
class EngineFolder : public ::testing::Test {
  protected:
    void Use(const std::string& folder) {
        FreeEngines();
        gAppPath = folder;
    }
    void TearDown() override {
        FreeEngines();
        gAppPath = saved_;
    }

    void Script(int refuseAt, int refuseStatus, int refuseCode, int convertStatus,
                int convertCode) {
        using ScriptFn = void(int, int, int, int, int);
        reinterpret_cast<ScriptFn*>(EngineSymbol(Engine::Detagger, "STUB_Script"))(
            refuseAt, refuseStatus, refuseCode, convertStatus, convertCode);
    }
    std::string Log() {
        using LogFn = const char*();
        return reinterpret_cast<LogFn*>(EngineSymbol(Engine::Detagger, "STUB_Log"))();
    }

  private:
    std::string saved_ = gAppPath;
};

const char* const kAlwaysSet = "Set 4711 Add URL references at end of file=No\n"
                               "Set 4711 Display link URLs=No\n"
                               "Set 4711 Allow 8-bit ANSI values in output=Yes\n"
                               "Set 4711 Allow ANSI alternatives (e.g. space for &nbsp;)=Yes\n";

struct PolicyCase {
    const char* name;
    clsExtractionOptions options;
    std::string expectedLog;
};

void PrintTo(const PolicyCase& c, std::ostream* os) {
    *os << c.name;
}

clsExtractionOptions Options(bool original, bool singleLine, bool limit, int width) {
    clsExtractionOptions o;
    o.OriginalFormat = original;
    o.SingleLineParagraph = singleLine;
    o.LimitLineLength = limit;
    o.MaxNumCharsPerLine = width;
    return o;
}

class PolicyChoice : public EngineFolder, public ::testing::WithParamInterface<PolicyCase> {};

TEST_P(PolicyChoice, SetsThePoliciesInOrderThenConvertsAndFrees) {
    Use(kStubFolder);
    Script(0, 0, 0, 0, 0);
    std::string message = "untouched";
    EXPECT_TRUE(ConvertHTMLToText("in.html", "out.wtd", message, GetParam().options));
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(Log(), "Allocate\n" + std::string(kAlwaysSet) + GetParam().expectedLog +
                         "Convert 4711 7 in.html out.wtd\nFree 4711\n");
}

INSTANTIATE_TEST_SUITE_P(Options, PolicyChoice,
                         ::testing::Values(
                             // the layout switches are not even looked at
                             PolicyCase{"OriginalFormat", Options(true, true, true, 50), ""},
                             PolicyCase{"NoWidth", Options(false, true, false, 50),
                                        "Set 4711 Output each paragraph on a single line=Yes\n"
                                        "Set 4711 Impose a page width on the output=No\n"},
                             PolicyCase{"Width79", Options(false, false, true, 79),
                                        "Set 4711 Output each paragraph on a single line=No\n"
                                        "Set 4711 Impose a page width on the output=Yes\n"
                                        "Set 4711 Target Page width=79\n"}));

struct FailureCase {
    const char* name;
    int refuseAt, refuseStatus, refuseCode, convertStatus, convertCode;
    const char* message;
    bool converted; // the conversion call was made
};

void PrintTo(const FailureCase& c, std::ostream* os) {
    *os << c.name;
}

class EngineFailure : public EngineFolder, public ::testing::WithParamInterface<FailureCase> {};

TEST_P(EngineFailure, GivesFalseWithTheCodesTextAndFreesTheHandle) {
    const FailureCase& c = GetParam();
    Use(kStubFolder);
    Script(c.refuseAt, c.refuseStatus, c.refuseCode, c.convertStatus, c.convertCode);
    std::string message;
    EXPECT_FALSE(ConvertHTMLToText("in.html", "out.wtd", message, Options(true, 0, 0, 79)));
    EXPECT_EQ(message, c.message);
    const std::string log = Log();
    EXPECT_EQ(log.find("Convert") != std::string::npos, c.converted);
    EXPECT_TRUE(log.ends_with("Free 4711\n")) << log;
}

INSTANTIATE_TEST_SUITE_P(
    Codes, EngineFailure,
    ::testing::Values(
        FailureCase{"FourthPolicyRefused", 4, 1, 10, 0, 0, "Unknown policy name.", false},
        FailureCase{"CodeWithoutStatus", 2, 0, 11, 0, 0, "Invalid policy value.", false},
        FailureCase{"StatusWithoutCode", 1, 1, 0, 0, 0, "", false},
        FailureCase{"UnknownCode", 0, 0, 0, 1, 12, "", true},
        FailureCase{"FileNotFound", 0, 0, 0, 1, 5, "The specified file could not be found", true},
        FailureCase{"ConvertStatusOnly", 0, 0, 0, 1, 0, "", true}));

TEST_F(EngineFolder, MissingLibraryIsReportedUnderTheRoutinesName) {
    test::TempDir empty;
    Use(empty.Path());
    test::ScopedRecordingPrompter prompter;
    std::string message;
    EXPECT_FALSE(ConvertHTMLToText("in.html", "out.wtd", message, clsExtractionOptions{}));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_NE(prompter->boxes[0].text.find("modConvertFormats.ConvertHTMLToText"),
              std::string::npos);
}

TEST_F(EngineFolder, RealEngineWritesTheText) {
    Use(ORVANE_BIN_DIR);
    test::TempDir dir;
    const std::string in = dir.Write("page.html", "<p>Hello <b>world</b></p><p>again");
    std::string message;
    ASSERT_TRUE(ConvertHTMLToText(in, dir.Path() + "out.wtd", message, clsExtractionOptions{}));
    std::ifstream out(dir.Path() + "out.wtd", std::ios::binary);
    std::stringstream text;
    text << out.rdbuf();
    EXPECT_EQ(text.str(), "Hello world\r\n\r\nagain\r\n");
}

TEST_F(EngineFolder, RealEngineMissingInputGivesCodeFive) {
    Use(ORVANE_BIN_DIR);
    test::TempDir dir;
    std::string message;
    EXPECT_FALSE(ConvertHTMLToText(dir.Path() + "none.html", dir.Path() + "out.wtd", message,
                                   clsExtractionOptions{}));
    EXPECT_EQ(message, "The specified file could not be found");
}

TEST(DetaggerErrorText, TableWordForWord) {
    EXPECT_EQ(DetaggerErrorText(1),
              "API call was not made.  The converter handle is probably invalid.");
    EXPECT_EQ(DetaggerErrorText(4), "Failed to load policy value. Either the policy name was "
                                    "incorrect, or the value was invalid.");
    EXPECT_EQ(DetaggerErrorText(11), "Invalid policy value.");
    EXPECT_EQ(DetaggerErrorText(0), "");
    EXPECT_EQ(DetaggerErrorText(12), "");
    EXPECT_EQ(DetaggerErrorText(-1), "");
}

} // namespace
} // namespace orvane
