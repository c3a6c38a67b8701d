// The office engine with the real suite: the five save formats byte for byte, documents of the
// suite's own formats, files it cannot read, a hang ended at the time limit, and runs at once.
#include "intake/office/OfficeEngine.h"

#include "office/OfficeFixture.h"

#include <gtest/gtest.h>

#include <thread>

namespace orvane::test {
namespace {

const std::string kMenuPage = "<html><head><meta charset=\"utf-8\"><title>T</title></head><body>\n"
                              "<h1>Caf\xC3\xA9 menu</h1>\n"
                              "<p>Cr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
                              "e<br>Stra\xC3\x9F"
                              "e</p>\n"
                              "<p>Every morning the bakery on the corner sells fresh bread, warm "
                              "rolls and small cakes to the people who pass by.</p>\n"
                              "</body></html>\n";
const std::string kLongLine = "Every morning the bakery on the corner sells fresh bread, warm "
                              "rolls and small cakes to the people who pass by.\r\n";
const std::string kWrapped = "Every morning the bakery on the corner sells fresh bread, warm "
                             "rolls and small\r\ncakes to the people who pass by.\r\n";

office::SuiteSettings Suite() {
    office::SuiteSettings s;
    s.program = RealSuite();
    return s;
}

struct FormatCase {
    int format;
    std::string expected;
};

void PrintTo(const FormatCase& c, std::ostream* os) {
    *os << "format " << c.format;
}

class SaveFormats : public ::testing::TestWithParam<FormatCase> {};

// CP1252 e-acute E9, sharp s DF; CP850 e-acute 82, sharp s E1; UTF-8 with its byte order mark.
// The <br> comes out as CRLF like the paragraph ends.
TEST_P(SaveFormats, WriteTheTextInTheirCodePageWithCrlf) {
    ASSERT_FALSE(RealSuite().empty()) << "soffice is not installed (tools/setup.sh)";
    TempDir dir;
    const std::string target = dir.Path() + "out.txt";
    const office::Outcome outcome = office::ConvertToText(dir.Write("menu.html", kMenuPage), target,
                                                          GetParam().format, Suite());
    ASSERT_TRUE(outcome.ok()) << office::Describe(outcome, "menu.html");
    EXPECT_EQ(Slurp(target), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Real, SaveFormats,
    ::testing::Values(FormatCase{2, "Caf\xE9 menu\r\nCr\xE8me br\xFBl\xE9"
                                    "e\r\nStra\xDF"
                                    "e\r\n" +
                                        kLongLine},
                      FormatCase{3, "Caf\xE9 menu\r\nCr\xE8me br\xFBl\xE9"
                                    "e\r\nStra\xDF"
                                    "e\r\n" +
                                        kWrapped},
                      FormatCase{4, "Caf\x82 menu\r\nCr\x8Ame br\x96l\x82"
                                    "e\r\nStra\xE1"
                                    "e\r\n" +
                                        kLongLine},
                      FormatCase{5, "Caf\x82 menu\r\nCr\x8Ame br\x96l\x82"
                                    "e\r\nStra\xE1"
                                    "e\r\n" +
                                        kWrapped},
                      FormatCase{7, "\xEF\xBB\xBF"
                                    "Caf\xC3\xA9 menu\r\nCr\xC3\xA8me br\xC3\xBBl\xC3\xA9"
                                    "e\r\nStra\xC3\x9F"
                                    "e\r\n" +
                                        kLongLine}));

TEST(OfficeEngine, UnknownSaveFormatIsRefusedWithoutStartingTheSuite) {
    TempDir dir;
    office::SuiteSettings s;
    s.program = dir.Path() + "never-run"; // would fail to start if it were tried
    for (int format : {0, 1, 6, 8, -1}) {
        const office::Outcome outcome =
            office::ConvertToText(dir.Write("a.html", "<p>a</p>"), dir.Path() + "o.txt", format, s);
        EXPECT_EQ(outcome.status, office::Status::BadFormat) << format;
    }
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "o.txt"));
}

// What the suite cannot read is a clean failure after about a second, and no target appears.
TEST(OfficeEngine, UnreadableFilesFailCleanly) {
    ASSERT_FALSE(RealSuite().empty());
    TempDir dir;
    std::string noise; // control characters and NULs: no document, and no text either
    for (int i = 0; i < 256; ++i)
        noise += static_cast<char>((i * 37 + 11) & 0x7F);
    const struct {
        const char* name;
        std::string path;
    } cases[] = {
        {"not a document", dir.Write("noise.bin", noise)},
        {"truncated docx", dir.Write("broken.docx", std::string("PK\x03\x04", 4) + "garbage")},
        {"missing", dir.Path() + "missing.html"},
        {"empty", dir.Write("empty.html", "")},
        {"folder", dir.Path()},
    };
    for (const auto& c : cases) {
        const std::string target = dir.Path() + "out.txt";
        const office::Outcome outcome = office::ConvertToText(c.path, target, 2, Suite());
        EXPECT_EQ(outcome.status, office::Status::NotOpened) << c.name;
        EXPECT_FALSE(std::filesystem::exists(target)) << c.name;
    }
}

// A suite that hangs and ignores SIGTERM, with a helper of its own: the run ends at the limit
// plus the two seconds' grace, and neither process is left.
TEST(OfficeEngine, AHangEndsAtTheTimeLimitWithNoProcessLeft) {
    TempDir dir;
    const std::string pids = dir.Path() + "pids";
    office::SuiteSettings s;
    s.program = WriteFakeSuite(dir, "trap '' TERM\necho $$ >> " + pids +
                                        "\nsleep 300 &\necho $! >> " + pids + "\nwait\n");
    s.timeLimit = std::chrono::milliseconds(300);
    int polls = 0;
    s.poll = [&] { ++polls; };
    const auto start = std::chrono::steady_clock::now();
    const office::Outcome outcome =
        office::ConvertToText(dir.Write("a.html", "<p>a</p>"), dir.Path() + "o.txt", 2, s);
    const auto elapsed = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(outcome.status, office::Status::TimedOut);
    EXPECT_GE(elapsed, std::chrono::seconds(2)); // SIGTERM was ignored, SIGKILL came after
    EXPECT_GT(polls, 10);                        // the caller's window kept being served
    const std::vector<long> started = Numbers(Slurp(pids));
    ASSERT_EQ(started.size(), 2u);
    for (long pid : started)
        EXPECT_FALSE(ProcessRuns(pid)) << pid;
    EXPECT_FALSE(std::filesystem::exists(dir.Path() + "o.txt"));
}

TEST(OfficeEngine, SigtermComesFirstAndEndsAWellBehavedSuite) {
    TempDir dir;
    const std::string seen = dir.Path() + "seen";
    office::SuiteSettings s;
    s.program = WriteFakeSuite(dir, "trap 'echo term > " + seen + "; exit 0' TERM\n" +
                                        "echo $$ > " + dir.Path() + "pid\nsleep 300 &\nwait\n");
    s.timeLimit = std::chrono::milliseconds(200);
    EXPECT_EQ(office::ConvertToText(dir.Write("a.html", "x"), dir.Path() + "o.txt", 2, s).status,
              office::Status::TimedOut);
    EXPECT_EQ(Slurp(seen), "term\n");
    EXPECT_FALSE(ProcessRuns(Numbers(Slurp(dir.Path() + "pid")).at(0)));
}

// Two pages of the same file name converted at the same moment: each text is its own.
TEST(OfficeEngine, TwoConversionsAtOnceDoNotMeet) {
    ASSERT_FALSE(RealSuite().empty());
    TempDir first, second;
    office::Outcome a, b;
    std::thread other([&] {
        a = office::ConvertToText(first.Write("page.html", "<p>Apples from the north</p>"),
                                  first.Path() + "out.txt", 2, Suite());
    });
    b = office::ConvertToText(second.Write("page.html", "<p>Pears from the south</p>"),
                              second.Path() + "out.txt", 2, Suite());
    other.join();
    ASSERT_TRUE(a.ok()) << office::Describe(a, "first");
    ASSERT_TRUE(b.ok()) << office::Describe(b, "second");
    EXPECT_EQ(Slurp(first.Path() + "out.txt"), "Apples from the north\r\n");
    EXPECT_EQ(Slurp(second.Path() + "out.txt"), "Pears from the south\r\n");
}

} // namespace
} // namespace orvane::test
