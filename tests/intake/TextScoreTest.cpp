// The text score: what counts as text, where the threshold cuts, and how a large file is sampled.
#include "intake/detfile/TextScore.h"
#include "intake/detfile/FileSample.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

namespace orvane::detfile {
namespace {

using namespace std::string_literals;

struct ScoreCase {
    const char* label;
    std::string bytes;
    int score;
    TextEncoding encoding;
};

void PrintTo(const ScoreCase& c, std::ostream* os) {
    *os << c.label;
}

// `bad` control bytes among `total`.
std::string WithControls(std::size_t total, std::size_t bad) {
    return std::string(total - bad, 'a') + std::string(bad, '\0');
}

class Score : public ::testing::TestWithParam<ScoreCase> {};

TEST_P(Score, OfOneBlock) {
    const ScoreCase& c = GetParam();
    TextTally t;
    t.units = UnitsOf(c.bytes);
    TallyBlock(c.bytes, false, false, t);
    EXPECT_EQ(ScoreOf(t), c.score);
    EXPECT_EQ(EncodingOf(t), c.encoding);
}

INSTANTIATE_TEST_SUITE_P(
    TextScore, Score,
    ::testing::Values(
        ScoreCase{"empty", "", 0, TextEncoding::Ascii},
        ScoreCase{"2 in 100 bad", WithControls(100, 2), 98, TextEncoding::Ascii},
        ScoreCase{"3 in 100 bad", WithControls(100, 3), 97, TextEncoding::Ascii},
        ScoreCase{"rounded down", WithControls(1000, 21), 97, TextEncoding::Ascii},
        ScoreCase{"white space is text", "\t\r\n\f\v x", 100, TextEncoding::Ascii},
        ScoreCase{"escape and delete are not", "ab\x1B\x7F", 50, TextEncoding::Ascii},
        ScoreCase{"utf-8", "\xC3\xA9t\xC3\xA9 \xF0\x9F\x98\x80", 100, TextEncoding::Utf8},
        ScoreCase{"utf-8 c1 control", "ab\xC2\x81", 75, TextEncoding::Utf8},
        ScoreCase{"overlong is ansi", "\xC0\xAF", 100, TextEncoding::Ansi},
        ScoreCase{"ansi", "caf\xE9 na\xEFve", 100, TextEncoding::Ansi},
        ScoreCase{"bytes 1252 leaves out", "ab\x81\x8D", 50, TextEncoding::Ansi},
        ScoreCase{"a stray byte: the ansi reading wins", "\xC3\xA9\xE9", 100, TextEncoding::Ansi},
        ScoreCase{"utf-16le", "\xFF\xFEh\0i\0\x3D\xD8\x00\xDE"s, 100, TextEncoding::Utf16},
        ScoreCase{"utf-16be", "\xFE\xFF\0h\0i"s, 100, TextEncoding::Utf16},
        ScoreCase{"utf-16 lone surrogate", "\xFF\xFEh\0\x00\xDC"s, 66, TextEncoding::Utf16},
        ScoreCase{"utf-16 odd byte", "\xFF\xFEh\0i"s, 80, TextEncoding::Utf16}));

// A character cut by a block's edge is left out, not taken for broken UTF-8.
TEST(TextScore, BlockEdgesInsideACharacter) {
    TextTally cut;
    TallyBlock("\xA9\x80xy\xC3\xA9\xE2\x82", true, true, cut);
    EXPECT_EQ(cut.total, 4u);
    EXPECT_EQ(EncodingOf(cut), TextEncoding::Utf8);
    TextTally whole;
    TallyBlock("\xA9\x80xy\xC3\xA9\xE2\x82", false, false, whole);
    EXPECT_EQ(whole.total, 8u);
    EXPECT_EQ(EncodingOf(whole), TextEncoding::Ansi);

    TextTally utf16; // a surrogate pair cut at both edges
    utf16.units = TextTally::Units::Utf16LE;
    TallyBlock("\0\xDCh\0\x3D\xD8"s, true, true, utf16);
    EXPECT_EQ(utf16.total, 2u);
    EXPECT_EQ(ScoreOf(utf16), 100);
}

class FileScore : public ::testing::Test {
  protected:
    int ScoreOfFile(const std::string& path, bool wholeFile) {
        FileSample f;
        EXPECT_TRUE(f.Open(path));
        const int score = ScoreFile(f, wholeFile).score;
        bytesRead = f.BytesRead();
        return score;
    }
    test::TempDir dir;
    std::size_t bytesRead = 0;
};

// The head decides for the recogniser; the whole file for the last test of the program.
TEST_F(FileScore, HeadAndWholeFileDiffer) {
    const std::string head = WithControls(kHeadBytes, kHeadBytes / 20);
    const std::string path = dir.Write("f", head + std::string(3'000'000, 'x'));
    EXPECT_EQ(ScoreOfFile(path, false), 95);
    EXPECT_GE(ScoreOfFile(path, true), 98);
    EXPECT_EQ(bytesRead, kHeadBytes + 3'000'000);
}

// Beyond the read limit the samples reach the tail: binary there lowers the score.
TEST_F(FileScore, LargeFilesAreSampledToTheEnd) {
    constexpr std::size_t kSize = 3 * kWholeFileReadLimit;
    std::string bytes(kSize, 'x');
    std::fill(bytes.begin() + kSize / 2, bytes.end(), '\0');
    const std::string path = dir.Write("f", bytes);
    EXPECT_EQ(ScoreOfFile(path, false), 100);
    const int whole = ScoreOfFile(path, true);
    EXPECT_GE(whole, 45);
    EXPECT_LE(whole, 55);
    EXPECT_LE(bytesRead, kWholeFileReadLimit);
}

TEST_F(FileScore, Utf16BlocksStayAligned) {
    std::string bytes = "\xFF\xFE";
    for (int i = 0; i < 600'000; ++i)
        bytes += "a\0"s;
    EXPECT_EQ(ScoreOfFile(dir.Write("f", bytes), true), 100);
    // U+0100 is text; read one byte off, the units would be U+0001, a control.
    bytes.resize(kWholeFileReadLimit * 2 + 2);
    for (std::size_t at = 2; at < bytes.size(); at += 2)
        bytes.replace(at, 2, "\0\1"s);
    EXPECT_EQ(ScoreOfFile(dir.Write("g", bytes), true), 100);
}

} // namespace
} // namespace orvane::detfile
