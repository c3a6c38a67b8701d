#include "settings/ProfileFile.h"

#include "SettingsTestSupport.h"

namespace orvane::test {
namespace {

using profile::GetPrivateProfileInt;
using profile::GetPrivateProfileString;
using profile::WritePrivateProfileString;

constexpr std::size_t kSize = 16383;

struct ReadCase {
    const char* Name;
    std::string File;
    std::string Section;
    std::string Key;
    std::string Expected; // default is "dflt"
};

void PrintTo(const ReadCase& c, std::ostream* os) {
    *os << c.Name;
}

class ProfileRead : public ProgramFolderTest, public ::testing::WithParamInterface<ReadCase> {};

TEST_P(ProfileRead, FindsValue) {
    const ReadCase& c = GetParam();
    WriteFile("t.ini", c.File);
    std::string out = "junk";
    const auto count =
        GetPrivateProfileString(c.Section, c.Key, "dflt", out, kSize, PathOf("t.ini"));
    EXPECT_EQ(out, c.Expected);
    EXPECT_EQ(count, c.Expected.size());
}

INSTANTIATE_TEST_SUITE_P(
    Syntax, ProfileRead,
    ::testing::Values(
        ReadCase{"LastLineWithoutEnd", "[A]\r\nk=v", "A", "k", "v"},
        ReadCase{"LfOnly", "[A]\nk=v\n[B]\nk=w\n", "B", "k", "w"},
        ReadCase{"CaseOfNames", "[Text Extraction]\r\nMaxNumCharsPerLine=7\r\n", "TEXT extraction",
                 "maxnumcharsperline", "7"},
        ReadCase{"BlanksAroundEverything", "  [ A ] \r\n\t k \t=  v w \t\r\n", " A", "k ", "v w"},
        ReadCase{"Quotes", "[A]\r\nk= '  q  ' \r\n", "A", "k", "  q  "},
        ReadCase{"UnmatchedQuotes", "[A]\r\nk=\"q'\r\n", "A", "k", "\"q'"},
        ReadCase{"EmptyValue", "[A]\r\nk=\r\n", "A", "k", ""},
        ReadCase{"KeyInOtherSection", "[A]\r\nk=1\r\n[B]\r\nx=2\r\n", "B", "k", "dflt"},
        ReadCase{"FirstOfDuplicateKeys", "[A]\r\nk=1\r\nk=2\r\n", "A", "k", "1"},
        ReadCase{"FirstOfDuplicateSections", "[A]\r\nx=1\r\n[A]\r\nk=2\r\n", "A", "k", "dflt"},
        ReadCase{"LinesWithoutEqualsIgnored", "[A]\r\n; note\r\njunk\r\nk=1\r\n", "A", "k", "1"},
        ReadCase{"BracketsInSectionName", "[a]b]\r\nk=1\r\n", "a]b", "k", "1"},
        ReadCase{"BracketsInValue", "[A]\r\nk=[B]\r\n[B]\r\nk=2\r\n", "A", "k", "[B]"},
        ReadCase{"Utf8Bom", "\xEF\xBB\xBF[A]\r\nk=1\r\n", "A", "k", "1"},
        ReadCase{"NulEndsName", "[A]\r\nk=1\r\n", std::string("A\0B", 3), "k", "1"}),
    [](const auto& info) { return std::string(info.param.Name); });

struct IntCase {
    const char* Value;
    std::int32_t Expected;
};

void PrintTo(const IntCase& c, std::ostream* os) {
    *os << '"' << c.Value << '"';
}

class ProfileInt : public ProgramFolderTest, public ::testing::WithParamInterface<IntCase> {};

TEST_P(ProfileInt, ReadsLeadingInteger) {
    WriteFile("t.ini", std::string("[A]\r\nk=") + GetParam().Value + "\r\n");
    EXPECT_EQ(GetPrivateProfileInt("A", "k", 55, PathOf("t.ini")), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(Values, ProfileInt,
                         ::testing::Values(IntCase{"12", 12}, IntCase{"+7", 7}, IntCase{"-1", -1},
                                           IntCase{" 32768 ", 32768}, IntCase{"12abc", 12},
                                           IntCase{"abc", 0}, IntCase{"- 1", 0}, IntCase{"'5'", 5},
                                           IntCase{"", 55}, IntCase{"4294967297", 1},
                                           IntCase{"3000000000", -1294967296}));

struct WriteCase {
    const char* Name;
    std::string Before;
    std::string Section, Key, Value;
    std::string After;
};

void PrintTo(const WriteCase& c, std::ostream* os) {
    *os << c.Name;
}

class ProfileWrite : public ProgramFolderTest, public ::testing::WithParamInterface<WriteCase> {};

TEST_P(ProfileWrite, PlacesLine) {
    const WriteCase& c = GetParam();
    if (!c.Before.empty()) WriteFile("t.ini", c.Before);
    EXPECT_TRUE(WritePrivateProfileString(c.Section, c.Key, c.Value, PathOf("t.ini")));
    EXPECT_EQ(ReadFile("t.ini"), c.After);
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"t.ini"}); // no temporary file left
}

INSTANTIATE_TEST_SUITE_P(
    Order, ProfileWrite,
    ::testing::Values(
        WriteCase{"CreatesFile", "", "Text Extraction", "k", "v", "[Text Extraction]\r\nk=v\r\n"},
        WriteCase{"NewSectionAtEnd", "[A]\r\na=1\r\n", "B", "b", "2",
                  "[A]\r\na=1\r\n[B]\r\nb=2\r\n"},
        WriteCase{"NewKeyAtEndOfItsSection", "[A]\r\na=1\r\n\r\n[B]\r\nb=2\r\n", "a", "c", "3",
                  "[A]\r\na=1\r\nc=3\r\n\r\n[B]\r\nb=2\r\n"},
        WriteCase{"RewrittenKeyStaysInPlace", "[A]\r\n  Key = 1\r\nz=2\r\n", "A", "KEY", "9",
                  "[A]\r\nKey=9\r\nz=2\r\n"},
        WriteCase{"OtherLinesKeptLineEndsMadeCrLf", "x=0\n[A]\n; note\njunk\nk=1", "A", "k", "2",
                  "x=0\r\n[A]\r\n; note\r\njunk\r\nk=2\r\n"},
        WriteCase{"BomKept", "\xEF\xBB\xBF[A]\r\nk=1\r\n", "A", "k", "2",
                  "\xEF\xBB\xBF[A]\r\nk=2\r\n"},
        WriteCase{"LineEndsInValueBecomeBlanks", "", "A", "k", "a\r\n[B]\nk=x",
                  "[A]\r\nk=a  [B] k=x\r\n"},
        WriteCase{"NulEndsValue", "", "A", "k", std::string("ab\0[B]", 6), "[A]\r\nk=ab\r\n"}),
    [](const auto& info) { return std::string(info.param.Name); });

TEST_F(ProgramFolderTest, HostileNamesAreRefusedAndChangeNothing) {
    const std::string before = "[A]\r\nk=1\r\n";
    WriteFile("t.ini", before);
    const std::pair<std::string, std::string> refused[] = {
        {"A", "k=x"}, {"A", "[B]"}, {"A", "k\r\nB"}, {"A", "k\nx"}, {"A\r\n[B", "k"},
        {"A\n", "k"}, {"A", "  "},  {"", "k"},       {" \t", "k"}};
    for (const auto& [section, key] : refused) {
        EXPECT_FALSE(WritePrivateProfileString(section, key, "v", PathOf("t.ini"))) << key;
        std::string out;
        GetPrivateProfileString(section, key, "dflt", out, kSize, PathOf("t.ini"));
        EXPECT_EQ(out, "dflt") << key;
    }
    EXPECT_EQ(ReadFile("t.ini"), before);
}

TEST_F(ProgramFolderTest, AwkwardButStorableTextRoundTrips) {
    const std::string path = PathOf("t.ini");
    const std::pair<std::string, std::string> entries[] = {{"a]b", "[x]"},     {"[c", "k=v=w"},
                                                           {"d e", "; not"},   {"f", "'q\""},
                                                           {"g", "\xE9t\xE9"}, {"h", "[A]"}};
    for (const auto& [section, value] : entries)
        ASSERT_TRUE(WritePrivateProfileString(section, "key]", value, path));
    for (const auto& [section, value] : entries) {
        std::string out;
        GetPrivateProfileString(section, "KEY]", "dflt", out, kSize, path);
        EXPECT_EQ(out, value) << section;
    }
}

TEST_F(ProgramFolderTest, UnreadableFileIsNeverReplaced) {
    if (geteuid() == 0) GTEST_SKIP() << "root reads any file";
    WriteFile("t.ini", "[A]\r\nk=1\r\n");
    std::filesystem::permissions(PathOf("t.ini"), std::filesystem::perms::none);
    EXPECT_FALSE(WritePrivateProfileString("A", "k", "2", PathOf("t.ini")));
    std::filesystem::permissions(PathOf("t.ini"), std::filesystem::perms::owner_all);
    EXPECT_EQ(ReadFile("t.ini"), "[A]\r\nk=1\r\n");
}

} // namespace
} // namespace orvane::test
