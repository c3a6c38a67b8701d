// Text extraction with both engines: which runs first, when the other follows, the attempt
// counter's combined message, what is refused before any engine, and a machine without the
// suite. The internal engine is the scripted stand-in library where its outcome must be chosen;
// the suite is the real one behind a script that counts its starts, or a script that fails.
#include "intake/ConvertFormats.h"

#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "office/OfficeFixture.h"
#include "settings/ViewOptions.h"
#include "support/RecordingPrompter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace orvane::test {
namespace {

const std::string kStubFolder = STUB_ENGINE_DIR;
const std::string kUnable = "Unable to extract the text data from file.\r\n\r\n";

class Pipeline : public ::testing::Test {
  protected:
    void SetUp() override {
        UseEngines(ORVANE_BIN_DIR);
        const char* path = std::getenv("PATH");
        realPath_ = path != nullptr ? path : "";
    }
    void TearDown() override {
        FreeEngines();
        gAppPath = savedAppPath_;
        for (const std::string& f : made_) {
            std::error_code ec;
            std::filesystem::remove(f, ec);
        }
    }

    // Engines from `folder`; error files go to a folder of the test's own.
    void UseEngines(const std::string& folder) {
        FreeEngines();
        for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt})
            LoadEngine(e, e == Engine::Detagger ? folder : std::string(ORVANE_BIN_DIR));
        gAppPath = dir.Path();
    }
    // The stand-in internal engine, converting with the given error code (0: success).
    void InternalEngineGives(int code) {
        UseEngines(kStubFolder);
        using ScriptFn = void(int, int, int, int, int);
        reinterpret_cast<ScriptFn*>(EngineSymbol(Engine::Detagger, "STUB_Script"))(
            0, 0, 0, code != 0 ? 1 : 0, code);
    }
    bool InternalEngineRan() {
        using LogFn = const char*();
        const std::string log =
            reinterpret_cast<LogFn*>(EngineSymbol(Engine::Detagger, "STUB_Log"))();
        return log.find("Convert") != std::string::npos;
    }
    // A suite first on the PATH that notes each start, then converts for real or fails.
    // Returns the PATH that finds it first.
    std::string PutSuiteFirst(bool works) {
        WriteFakeSuite(fakes, "echo run >> " + Starts() + "\n" +
                                  (works ? "exec " + RealSuite() + " \"$@\"\n"
                                         : "echo 'Error: source file could not be loaded'\n"));
        return fakes.Path() + ":" + realPath_;
    }
    std::string Starts() const { return fakes.Path() + "starts"; }
    int SuiteStarts() const {
        const std::string s = Slurp(Starts());
        return static_cast<int>(std::count(s.begin(), s.end(), '\n'));
    }

    bool Convert(const std::string& path, const std::string& format,
                 const clsExtractionOptions& options) {
        textFile.clear();
        reason.clear();
        const bool ok = modConvertFormats::ConvertFileIfNeeded(path, format, textFile, reason,
                                                               ComparisonMode::Text, options);
        if (!textFile.empty()) made_.push_back(textFile);
        return ok;
    }

    TempDir dir, fakes;
    ScopedRecordingPrompter prompter;
    std::string textFile, reason;

  private:
    std::string realPath_, savedAppPath_ = gAppPath;
    std::vector<std::string> made_;
};

std::vector<std::string> Words(const std::string& text) {
    std::vector<std::string> words;
    std::istringstream in(text);
    for (std::string w; in >> w;)
        words.push_back(w);
    return words;
}

// Both engines tell the same words of a page; only the layout of the text may differ.
TEST_F(Pipeline, TheWordProcessorGivesThePagesWordsLikeTheInternalEngine) {
    ASSERT_FALSE(RealSuite().empty());
    const std::string page = dir.Write(
        "page.html", "<html><body><h1>Station news</h1><p>The <b>night train</b> to the coast "
                     "now stops at <a href=\"x.html\">Lindholm</a>.</p><p>Tickets: 12 &amp; "
                     "up<br>Children free</p><script>var hidden = 1;</script></body></html>");
    clsExtractionOptions options;
    ASSERT_TRUE(Convert(page, "HTML", options)) << reason;
    const std::string internal = Slurp(textFile);
    options.EnginePreference = 1;
    ASSERT_TRUE(Convert(page, "HTML", options)) << reason;
    const std::string office = Slurp(textFile);
    EXPECT_EQ(Words(office), Words(internal)) << office << "\n---\n" << internal;
    EXPECT_EQ(Words(office).front(), "Station");
}

struct OrderCase {
    const char* name;
    int preference;
    int internalCode; // 0: the internal engine succeeds
    bool suiteWorks;
    bool ok;
    bool internalRuns;
    int suiteStarts;
    std::string reason;
};

void PrintTo(const OrderCase& c, std::ostream* os) {
    *os << c.name;
}

class EngineOrder : public Pipeline, public ::testing::WithParamInterface<OrderCase> {};

TEST_P(EngineOrder, FollowsThePreferenceAndCountsAttempts) {
    const OrderCase& c = GetParam();
    ASSERT_FALSE(RealSuite().empty());
    InternalEngineGives(c.internalCode);
    ScopedPath path(PutSuiteFirst(c.suiteWorks));
    clsExtractionOptions options;
    options.EnginePreference = c.preference;
    EXPECT_EQ(Convert(dir.Write("p.html", "<p>Quiet harbour</p>"), "HTML", options), c.ok);
    EXPECT_EQ(reason, c.reason);
    EXPECT_EQ(InternalEngineRan(), c.internalRuns);
    EXPECT_EQ(SuiteStarts(), c.suiteStarts);
    EXPECT_TRUE(prompter->boxes.empty());
    if (c.ok && c.suiteStarts == 1 && c.suiteWorks) {
        EXPECT_EQ(Slurp(textFile), "Quiet harbour\r\n");
    }
}

const std::string kFatal = "A fatal error occurred during conversion.";

INSTANTIATE_TEST_SUITE_P(
    Cases, EngineOrder,
    ::testing::Values(
        OrderCase{"InternalFirstSucceedsAlone", 0, 0, true, true, true, 0, ""},
        OrderCase{"InternalFailsWordProcessorFollows", 0, 7, true, true, true, 1, ""},
        OrderCase{"InternalFailsThenWordProcessorFails", 0, 7, false, false, true, 1,
                  kUnable + kFatal},
        OrderCase{"WordProcessorFirstSucceedsAlone", 1, 0, true, true, false, 1, ""},
        OrderCase{"WordProcessorCannotOpenInternalFollows", 1, 0, false, true, true, 1, ""},
        OrderCase{"BothFailWordProcessorFirst", 1, 7, false, false, true, 1, kUnable + kFatal},
        OrderCase{"InternalFailsWithoutTextGivesTheFallbackText", 1, 99, false, false, true, 1,
                  kUnable + "The internal HTML converter failed.  Try using an alternate "
                            "converter."}));

// Refused before any engine runs, whatever the preference: the suite is never started.
TEST_F(Pipeline, OtherFormatsAreRefusedBeforeAnyEngine) {
    ScopedPath path(PutSuiteFirst(true));
    InternalEngineGives(0);
    for (int preference : {0, 1}) {
        for (const char* format : {"DOCX", "DOC", "RTF", "PDF", "ODT"}) {
            clsExtractionOptions options;
            options.EnginePreference = preference;
            EXPECT_FALSE(Convert(dir.Write("a.docx", "PK"), format, options));
            EXPECT_EQ(reason, "Only HTML and ASCII text files may be compared.");
            EXPECT_TRUE(textFile.empty());
        }
    }
    EXPECT_EQ(SuiteStarts(), 0);
    EXPECT_FALSE(InternalEngineRan());
}

// Plain text: the internal engine reports success and writes nothing; the word processor
// really saves the text under the name.
TEST_F(Pipeline, PlainTextIsLeftUnwrittenByTheInternalEngineOnly) {
    ASSERT_FALSE(RealSuite().empty());
    const std::string text = dir.Write("notes.txt", "Line one\nLine two\n");
    clsExtractionOptions options;
    ASSERT_TRUE(Convert(text, "ASC", options));
    EXPECT_FALSE(std::filesystem::exists(textFile));
    options.EnginePreference = 1;
    ASSERT_TRUE(Convert(text, "ASC", options));
    EXPECT_EQ(Slurp(textFile), "Line one\r\nLine two\r\n");
}

// No suite on the PATH: with the word processor first the run ends at once with the report and
// an empty reason; with the internal engine first its failure brings the report on turn two.
TEST_F(Pipeline, WithoutTheSuiteTheRunEndsInTheErrorReport) {
    for (int preference : {1, 0}) {
        InternalEngineGives(7);
        prompter->boxes.clear();
        ScopedPath path(fakes.Path());
        clsExtractionOptions options;
        options.EnginePreference = preference;
        EXPECT_FALSE(Convert(dir.Write("p.html", "<p>x</p>"), "HTML", options));
        EXPECT_EQ(reason, "");
        EXPECT_EQ(InternalEngineRan(), preference == 0);
        ASSERT_EQ(prompter->boxes.size(), 1u) << preference;
        EXPECT_EQ(prompter->boxes[0].title,
                  "Unexpected Error in modConvertFormats.ConvertFileIfNeeded");
    }
}

} // namespace
} // namespace orvane::test
