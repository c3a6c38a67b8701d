// clsMSWordConverter: its error numbers and texts, the Errors collection, the line limit taken
// from the internal engine's settings, and the window served while the suite runs.
#include "intake/OfficeConverter.h"

#include "frame/EngineLibraries.h"

#include "frame/RuntimeError.h"
#include "office/OfficeFixture.h"
#include "support/RecordingPrompter.h"

#include <gtest/gtest.h>

namespace orvane::test {
namespace {

class CountingPrompter : public RecordingPrompter {
  public:
    void DoEvents() override { ++events; }
    int events = 0;
};

class WordConverter : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(LoadEngine(Engine::KWCommon, ORVANE_BIN_DIR)); // temporary names
        ASSERT_TRUE(LoadEngine(Engine::DocTxt, ORVANE_BIN_DIR));
        previous_ = SetPrompter(prompter);
    }
    void TearDown() override { SetPrompter(previous_); }

    std::string Entry(long number, const std::string& description, const std::string& file) {
        return "Error #: " + std::to_string(number) + " Error Description: " + description +
               " Error Module: clsWord.ConvertFileToText File: " + file;
    }

    TempDir dir;
    clsExtractionOptions options;
    std::shared_ptr<CountingPrompter> prompter = std::make_shared<CountingPrompter>();

  private:
    std::shared_ptr<Prompter> previous_;
};

TEST_F(WordConverter, ConvertingBeforeInitializeIsErrorMinus999) {
    clsMSWordConverter converter(options);
    const std::string source = dir.Write("a.html", "<p>a</p>");
    EXPECT_FALSE(converter.ConvertFileToText(source, dir.Path() + "o.txt", 2, false));
    EXPECT_EQ(converter.Errors(),
              std::vector<std::string>{Entry(-999, "Word is not running.", source)});
}

TEST_F(WordConverter, AutomationSwitchedOffIsErrorMinus997) {
    clsMSWordConverter converter(options);
    ASSERT_TRUE(converter.Initialize(false));
    EXPECT_TRUE(converter.WordSupportsAutomation());
    converter.WordSupportsAutomation(false);
    const std::string source = dir.Write("a.html", "<p>a</p>");
    EXPECT_FALSE(converter.ConvertFileToText(source, dir.Path() + "o.txt", 2, false));
    EXPECT_EQ(converter.Errors(),
              std::vector<std::string>{Entry(-997, "Word does not support automation.", source)});
}

TEST_F(WordConverter, InitializeWithoutTheSuiteThrows429) {
    ScopedPath path(dir.Path());
    clsMSWordConverter converter(options);
    try {
        converter.Initialize(false);
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number, err::CannotCreateObject);
    }
    EXPECT_FALSE(converter.WordSupportsAutomation());
}

// A failed conversion leaves one entry; the next conversion on the same object starts afresh.
TEST_F(WordConverter, EachConversionStartsWithEmptyErrors) {
    ASSERT_FALSE(RealSuite().empty());
    clsMSWordConverter converter(options);
    ASSERT_TRUE(converter.Initialize(false));
    const std::string broken = dir.Write("broken.docx", std::string("PK\x03\x04", 4) + "junk");
    EXPECT_FALSE(converter.ConvertFileToText(broken, dir.Path() + "o.txt", 2, false));
    EXPECT_EQ(converter.Errors(),
              std::vector<std::string>{Entry(-998, "Word was unable to open the file.", broken)});
    EXPECT_TRUE(converter.ConvertFileToText(dir.Write("a.html", "<p>Fine</p>"),
                                            dir.Path() + "o.txt", 2, false));
    EXPECT_TRUE(converter.Errors().empty());
    EXPECT_EQ(Slurp(dir.Path() + "o.txt"), "Fine\r\n");
}

TEST_F(WordConverter, AHangIsEndedAndTheWindowServedMeanwhile) {
    const std::string suite = WriteFakeSuite(dir, "exec /bin/sleep 300\n");
    ScopedPath path(dir.Path());
    clsMSWordConverter converter(options, std::chrono::milliseconds(500));
    ASSERT_TRUE(converter.Initialize(false));
    const std::string source = dir.Write("a.html", "<p>a</p>");
    EXPECT_FALSE(converter.ConvertFileToText(source, dir.Path() + "o.txt", 2, false));
    ASSERT_EQ(converter.Errors().size(), 1u);
    EXPECT_TRUE(converter.Errors()[0].starts_with("Error #: -996 Error Description: The office "
                                                  "suite did not finish"))
        << converter.Errors()[0];
    EXPECT_GT(prompter->events, 10);
}

TEST_F(WordConverter, ABadSaveFormatIsAnInvalidCall) {
    clsMSWordConverter converter(options);
    ASSERT_TRUE(converter.Initialize(false));
    const std::string source = dir.Write("a.html", "<p>a</p>");
    EXPECT_FALSE(converter.ConvertFileToText(source, dir.Path() + "o.txt", 6, false));
    EXPECT_EQ(converter.Errors(),
              std::vector<std::string>{Entry(5, ErrorDescription(err::InvalidCall), source)});
}

struct LimitCase {
    bool limitLineLength;
    bool wordLimitLineLength;
    bool limited;
};

class LineLimitSettings : public WordConverter, public ::testing::WithParamInterface<LimitCase> {};

// The internal engine's width decides; the word processor's own width setting is ignored.
TEST_P(LineLimitSettings, DecideWhetherTheTextIsWrapped) {
    ASSERT_FALSE(RealSuite().empty());
    options.LimitLineLength = GetParam().limitLineLength;
    options.MaxNumCharsPerLine = 10;
    options.MSWordLimitLineLength = GetParam().wordLimitLineLength;
    options.MSWordMaxNumCharsPerLine = 5;
    clsMSWordConverter converter(options);
    ASSERT_TRUE(converter.Initialize(false));
    ASSERT_TRUE(converter.ConvertFileToText(dir.Write("a.html", "<p>alpha beta gamma delta</p>"),
                                            dir.Path() + "o.txt", 2, false))
        << converter.Errors().at(0);
    EXPECT_EQ(Slurp(dir.Path() + "o.txt"), GetParam().limited ? "alpha beta\r\ngamma\r\ndelta\r\n"
                                                              : "alpha beta gamma delta\r\n");
}

INSTANTIATE_TEST_SUITE_P(Real, LineLimitSettings,
                         ::testing::Values(LimitCase{true, false, true},
                                           LimitCase{false, true, false}));

} // namespace
} // namespace orvane::test
