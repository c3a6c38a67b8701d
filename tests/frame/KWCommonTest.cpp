#include "frame/KWCommon.h"
#include "frame/NumericSort.h"
#include "frame/ProgramFolder.h"
#include "support/TempDir.h"

#include <clocale>
#include <filesystem>
#include <gtest/gtest.h>

namespace orvane {
namespace {

class KWCommonTest : public ::testing::Test {
  protected:
    void SetUp() override { gAppPath = ORVANE_BIN_DIR; }
    test::TempDir dir;
};

TEST_F(KWCommonTest, FileExistsOnlyForFiles) {
    const std::string file = dir.Write("page.html", "<p>");
    EXPECT_TRUE(FileExists(file));
    EXPECT_TRUE(FileExists("  " + file + "  "));
    EXPECT_FALSE(FileExists("   "));
    EXPECT_FALSE(FileExists(dir.Path()));                                  // ends in a separator
    EXPECT_FALSE(FileExists(dir.Path().substr(0, dir.Path().size() - 1))); // a folder
    EXPECT_FALSE(FileExists(file + "\\"));
    EXPECT_FALSE(FileExists(dir.Path() + "missing.html"));
    EXPECT_FALSE(FileExists(std::string("bad\0name", 8)));
}

TEST_F(KWCommonTest, PathPieces) {
    EXPECT_EQ(GetFileNameFromPath("/a/b/c.html"), "c.html");
    EXPECT_EQ(GetFileNameFromPath("c:\\x\\y.htm"), "y.htm");
    EXPECT_EQ(GetFileNameFromPath("plain"), "plain");
    EXPECT_EQ(GetFileExtension("/a/b/c.html"), "html");
    EXPECT_EQ(GetFileExtension("/a.d/file"), "");
    EXPECT_EQ(GetFileExtension("name."), "");
    EXPECT_EQ(GetFileExtension("none"), "");
    EXPECT_EQ(AddTrailingBackslash(""), "");
    EXPECT_EQ(AddTrailingBackslash("/x"), "/x/");
    EXPECT_EQ(AddTrailingBackslash("/x/"), "/x/");
    EXPECT_EQ(AddTrailingBackslash("c:\\x\\"), "c:\\x\\");
    EXPECT_EQ(EncloseInQuotes("a\"b"), "\"a\"b\"");
    EXPECT_EQ(StripNulls(std::string("ab\0cd", 5)), "ab");
}

TEST_F(KWCommonTest, StringEquality) {
    EXPECT_TRUE(StringsAreEqual("", ""));
    EXPECT_FALSE(StringsAreEqual("a", "A"));
    EXPECT_TRUE(StringsAreEqualCompare("HTTP://", "http://", 1));
    EXPECT_FALSE(StringsAreEqualCompare("HTTP://", "http://", 0));
    EXPECT_FALSE(StringsAreEqualCompare("http:/", "http://", 1));
}

TEST_F(KWCommonTest, WebAddressesNeedASchemeOfTwoLetters) {
    EXPECT_TRUE(IsWebAddress("http://example.org/"));
    EXPECT_TRUE(IsWebAddress("HTTPS://x"));
    EXPECT_TRUE(IsWebAddress("file:///tmp/a.html"));
    EXPECT_FALSE(IsWebAddress("C:\\pages\\a.html"));
    EXPECT_FALSE(IsWebAddress("www.example.org"));
    EXPECT_FALSE(IsWebAddress("/tmp/a:b.html"));
    EXPECT_FALSE(IsWebAddress("1http://x"));
}

TEST_F(KWCommonTest, TempFileSpecCreatesAUniqueFile) {
    std::string ext;
    const std::string own = GetTempFileSpec("xyzzy", ext, dir.Path());
    EXPECT_EQ(ext, "tmp");
    EXPECT_TRUE(std::filesystem::exists(own));
    EXPECT_EQ(GetFileNameFromPath(own).substr(0, 3), "xyz");

    std::string wtd = "wtd";
    const std::string text = GetTempFileSpec("tmp", wtd, dir.Path());
    EXPECT_EQ(GetFileExtension(text), "wtd");
    EXPECT_FALSE(std::filesystem::exists(text)); // named, not made; its .tmp twin stays behind
    EXPECT_TRUE(std::filesystem::exists(kw::ReplaceExtension(text, "tmp")));

    std::string tmp = "tmp";
    const std::string page = GetTempFileSpec("htm", tmp, dir.Path());
    const std::string name = GetFileNameFromPath(page);
    EXPECT_EQ(name.substr(0, 3), "htm");
    EXPECT_EQ(name.substr(name.size() - 4), ".tmp");
    EXPECT_EQ(name.find_first_not_of("0123456789ABCDEF", 3), name.size() - 4) << name;
    EXPECT_NE(page, GetTempFileSpec("htm", tmp, dir.Path()));
}

TEST_F(KWCommonTest, EngineStringFunctions) {
    EXPECT_EQ(kw::RemainingString(R"("a" "b")", R"("a")"), R"( "b")");
    EXPECT_EQ(kw::RemainingString("abc", "x"), "");
    EXPECT_EQ(kw::ReplaceString("a\tb\t", "\t", "   "), "a   b   ");
    EXPECT_EQ(kw::ReplaceString(std::string(1000, '\t'), "\t", "   "), std::string(3000, ' '));
    EXPECT_EQ(kw::ReplaceExtension("/t/tmpA1.tmp", "wtd"), "/t/tmpA1.wtd");
    EXPECT_EQ(kw::ReplaceExtension("/t.d/name", "tmp"), "/t.d/name.tmp");
    EXPECT_EQ(kw::NormalizePath("/home/user/doc"), "/home/user/");
    EXPECT_EQ(kw::NormalizePath("/home/user//"), "/home/user/");
    EXPECT_EQ(kw::NormalizePath("doc"), "");
    EXPECT_EQ(kw::GetLastItemInPath("/home/us"), "us");
    EXPECT_EQ(kw::GetLastItemInPath("/home/"), "");
    EXPECT_EQ(kw::GetNextSlashPos("/a/b", 1), 1);
    EXPECT_EQ(kw::GetNextSlashPos("/a/b", 2), 3);
    EXPECT_EQ(kw::GetNextSlashPos("/a/b", 4), 0);
}

TEST(NumericSort, ValReadsTheLeadingNumber) {
    EXPECT_DOUBLE_EQ(Val("9.5pt"), 9.5);
    EXPECT_DOUBLE_EQ(Val(" 1 2 "), 12);
    EXPECT_DOUBLE_EQ(Val("abc"), 0);
    EXPECT_DOUBLE_EQ(Val("+7e2x"), 700);
    EXPECT_DOUBLE_EQ(Val("-3.25"), -3.25);
    std::setlocale(LC_NUMERIC, "de_DE.UTF-8"); // where present: a comma locale must not matter
    EXPECT_DOUBLE_EQ(Val("9.5"), 9.5);
    std::setlocale(LC_NUMERIC, "C");
}

} // namespace
} // namespace orvane
