// What a line is and when two lines are equal, how changes are written, and what the differ
// answers for binary files and files it cannot read.
#include "FileDiff.h"
#include "LineHash.h"
#include "TestSupport.h"
#include "support/Process.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using linediff::Options;
using linediff::OutputLines;

const Options kPlain{}, kCase{true, false, false}, kBlank{false, true, false},
    kBoth{true, true, false};

struct EqualityCase {
    const char* a;
    const char* b;
    Options options;
    bool equal;
};

// Eight-byte words and odd tails both, since equality and hashing take bytes in words.
const EqualityCase kEquality[] = {
    {"Hello World", "Hello World", kPlain, true},
    {"Hello World", "hello world", kPlain, false},
    {"<DIV CLASS=\"Main\">", "<div class=\"main\">", kCase, true},
    {"@[`{", "`{@[", kCase, false}, // neighbours of the letters do not fold
    {"ZEBRA AZ", "zebra az", kCase, true},
    {"The Zoo of Az", "tHE zOO OF aZ", kCase, true},
    {"caf\xC3\xA9", "CAF\xC3\x89", kCase, false}, // only ASCII letters fold
    {"a b", "ab", kCase, false},
    {"  a\tb \r", "ab", kBlank, true},
    {"\v\f", "", kBlank, true},
    {"a b", "A B", kBlank, false},
    {" <P> Some Text ", "<p>sometext", kBoth, true},
    {"x\r", "x", kPlain, false},
    {"abc", "abd", kBoth, false},
};

TEST(LineDiffRules, EqualityAndHashAgreeUnderTheSwitches) {
    for (const EqualityCase& c : kEquality) {
        SCOPED_TRACE(testing::Message() << '"' << c.a << "\" vs \"" << c.b << '"');
        EXPECT_EQ(linediff::LinesEqual(c.a, c.b, c.options), c.equal);
        if (c.equal) {
            EXPECT_EQ(linediff::HashLine(c.a, c.options), linediff::HashLine(c.b, c.options));
        }
    }
}

// The word-at-a-time code against a plain byte-by-byte reading, on every length up to 40.
std::string Normalized(std::string_view s, const Options& o) {
    std::string out;
    for (char c : s) {
        if (o.ignoreWhiteSpace && linediff::IsBlank(static_cast<unsigned char>(c))) continue;
        out += o.ignoreCase && c >= 'A' && c <= 'Z' ? char(c + 32) : c;
    }
    return out;
}

TEST(LineDiffRules, WordAtATimeMatchesByteByByteOnAllLengths) {
    std::mt19937_64 rng(3);
    const char pool[] = "aAzZ@[`{ \t\r\xC3\xA9";
    for (const Options& o : {kPlain, kCase, kBlank, kBoth}) {
        for (int round = 0; round < 4000; ++round) {
            std::string a(rng() % 41, ' ');
            for (char& c : a)
                c = pool[rng() % (sizeof pool - 1)];
            std::string b = a;
            if (!b.empty() && rng() % 2) b[rng() % b.size()] = pool[rng() % (sizeof pool - 1)];
            bool expected = Normalized(a, o) == Normalized(b, o);
            ASSERT_EQ(linediff::LinesEqual(a, b, o), expected)
                << '"' << a << "\" vs \"" << b << '"';
            if (expected) {
                ASSERT_EQ(linediff::HashLine(a, o), linediff::HashLine(b, o));
            }
        }
    }
}

struct FormatCase {
    const char* name;
    const char* a;
    const char* b;
    const char* output; // empty: identical
};

const FormatCase kFormats[] = {
    {"added at top", "c\n", "a\nb\nc\n", "0a1,2\n> a\n> b\n"},
    {"deleted at end", "a\nb\nc\n", "a\n", "2,3d1\n< b\n< c\n"},
    {"changed one to two", "a\nb\nc\n", "a\nx\ny\nc\n", "2c2,3\n< b\n---\n> x\n> y\n"},
    {"hunks in order", "1\n2\n3\n4\n5\n", "1\n3\n4\nx\n5\n6\n", "2d1\n< 2\n4a4\n> x\n5a6\n> 6\n"},
    {"no final LF on the Original", "a\nb", "a\nb\n",
     "2c2\n< b\n\\ No newline at end of file\n---\n> b\n"},
    {"no final LF on both", "a\nb", "a\nc",
     "2c2\n< b\n\\ No newline at end of file\n---\n> c\n"
     "\\ No newline at end of file\n"},
    {"CR kept as content", "a\r\nb\r\n", "a\nb\r\n", "1c1\n< a\r\n---\n> a\n"},
    {"empty Original", "", "a\n", "0a1\n> a\n"},
    {"empty lines count", "\n\n", "\n\nx\n", "2a3\n> x\n"},
    {"repeat added slides down", "a\nb\n", "a\nb\na\nb\n", "2a3,4\n> a\n> b\n"},
    {"repeat deleted slides down", "x\na\nb\na\nb\ny\n", "x\na\nb\ny\n", "4,5d3\n< a\n< b\n"},
    {"change meets its counterpart", "x\na\nb\na\nb\ny\n", "x\na\nb\nz\ny\n",
     "4,5c4\n< a\n< b\n---\n> z\n"},
    {"all equal", "a\nb\n", "a\nb\n", ""},
};

TEST(LineDiffRules, NormalFormatIsWrittenExactly) {
    for (const FormatCase& c : kFormats) {
        OutputLines out;
        linediff::Status status = linediff::CompareTexts(c.a, c.b, kPlain, out);
        EXPECT_EQ(status, *c.output ? linediff::kDiffer : linediff::kIdentical) << c.name;
        EXPECT_EQ(out.Text(), c.output) << c.name;
    }
}

TEST(LineDiffRules, SwitchesMakeDifferencesDisappearButShowOriginalBytes) {
    OutputLines out;
    EXPECT_EQ(linediff::CompareTexts("A b\nC\n", "a B\nc\n", kCase, out), linediff::kIdentical);
    EXPECT_EQ(linediff::CompareTexts("a b\r\nc", "ab\nc\n", kBlank, out), linediff::kIdentical);
    EXPECT_EQ(linediff::CompareTexts("a b\nc", "a b\nc\n", kCase, out), linediff::kDiffer);
    ASSERT_EQ(linediff::CompareTexts("X\nA b\n", "x\nab\n", kBoth, out), linediff::kIdentical);
    ASSERT_EQ(linediff::CompareTexts("X\nA b\ny\n", "x\nab\nz\n", kBoth, out), linediff::kDiffer);
    EXPECT_EQ(out.Text(), "3c3\n< y\n---\n> z\n");
}

class LineDiffFiles : public testing::Test {
  protected:
    linediff::Status Compare(const std::string& a, const std::string& b, Options o = {}) {
        return linediff::CompareFiles(a, b, o, out);
    }
    orvane::test::TempDir dir;
    OutputLines out;
};

TEST_F(LineDiffFiles, BinaryFilesGiveOneNoticeUnlessForcedToText) {
    std::string text = dir.Write("t.html", "a\n"),
                bin = dir.Write("b.bin", std::string("a\0b\n", 4));
    std::string bin2 = dir.Write("c.bin", std::string("a\0b\n", 4));
    EXPECT_EQ(Compare(text, bin), linediff::kDiffer);
    ASSERT_EQ(out.Count(), 1u);
    EXPECT_EQ(out.Line(0), "Binary files " + text + " " + bin + " differ");
    EXPECT_EQ(Compare(bin, bin2), linediff::kIdentical);
    EXPECT_EQ(Compare(bin, bin2, {true, true, false}), linediff::kIdentical);
    EXPECT_EQ(Compare(text, bin, {false, false, true}), linediff::kDiffer);
    EXPECT_EQ(out.Text(), std::string("1c1\n< a\n---\n> a\0b\n", 18));
}

TEST_F(LineDiffFiles, TroubleNamesThePathAndTheReason) {
    std::string ok = dir.Write("ok.txt", "a\n"), missing = dir.Path() + "missing.txt";
    struct {
        std::string a, b, path, reason;
    } cases[] = {{ok, missing, missing, "No such file or directory"},
                 {missing, ok, missing, "No such file or directory"},
                 {dir.Path(), ok, dir.Path(), "folder"},
                 {ok, ok + "/x", ok + "/x", "Not a directory"},
                 {ok, "", "\"\"", "No such file or directory"}};
    for (const auto& c : cases) {
        EXPECT_EQ(Compare(c.a, c.b), linediff::kTrouble);
        ASSERT_EQ(out.Count(), 1u);
        std::string line(out.Line(0));
        EXPECT_NE(line.find(c.path), std::string::npos) << line;
        EXPECT_NE(line.find(c.reason), std::string::npos) << line;
    }
}

} // namespace
