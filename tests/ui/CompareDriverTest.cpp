#include "tests/ui/DriverFixture.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::test {
namespace {

// The driver's refusals and their order are tested without a window (compare_driver_tests);
// here one of them shows that the window goes back to its idle look.
TEST_F(DriverTest, ARefusalReturnsTheWindowToIdle) {
    Compare(dir.Path() + "missing.html", dir.Write("page.html", "<p>x</p>\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "File Does Not Exist");
    EXPECT_TRUE(Idle());
    EXPECT_EQ(window->MousePointer(), PointerDefault);
}

TEST_F(DriverTest, IdenticalFilesEndWithTheirMessage) {
    const std::string a = dir.Write("a.html", "<p>Same</p>\n");
    Compare(a, a);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Compare Files");
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical");
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Information);
    EXPECT_TRUE(Idle());
}

TEST_F(DriverTest, IgnoreCaseMakesCaseOnlyChangesIdentical) {
    session.ViewOptions.IgnoreCase = true;
    Compare(dir.Write("a.html", "<P>Hello</P>\n"), dir.Write("b.html", "<p>HELLO</p>\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical");
}

TEST_F(DriverTest, DifferencesFillTheGridsAndTheList) {
    Compare(dir.Write("a.html", "A\nB\nC\nD\n"), dir.Write("b.html", "A\nX\nC\nD\nE\n"));
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_FALSE(Idle());
    EXPECT_EQ(window->Diffs(), (DiffList{{2, 1, DiffKind::Changed}, {5, 1, DiffKind::Orphan}}));
    EXPECT_EQ(window->OriginalGrid().Rows(), 7);
    EXPECT_EQ(window->RevisedGrid().Rows(), 7);
    EXPECT_EQ(window->RevisedGrid().RowText(5), " 5:E");
    // The results open at the first difference.
    EXPECT_EQ(window->OriginalGrid().Row(), 2);
    EXPECT_EQ(window->OriginalGrid().RowPicture(2), CellPictureId::DifferArrow);
    EXPECT_EQ(window->OriginalGrid().RowPicture(1), CellPictureId::None);
    EXPECT_TRUE(window->OriginalGrid().Redraw());
    EXPECT_EQ(window->MousePointer(), PointerDefault);
    EXPECT_EQ(session.ViewOptions.OriginalFile, dir.Path() + "a.html");
}

TEST_F(DriverTest, ANewRunReplacesTheOldResults) {
    Compare(dir.Write("a.html", "1\n2\n3\n"), dir.Write("b.html", "1\n3\n"));
    EXPECT_EQ(window->Diffs(), (DiffList{{2, 1, DiffKind::Orphan}}));
    Compare(dir.Write("c.html", "x\n"), dir.Write("d.html", "y\n"));
    EXPECT_EQ(window->Diffs(), (DiffList{{1, 1, DiffKind::Changed}}));
    EXPECT_EQ(window->OriginalGrid().Rows(), 3);
}

TEST_F(DriverTest, BinaryFilesAreNotShown) {
    Compare(dir.Write("a.bin", std::string("GIF89a\0\1\2", 9)),
            dir.Write("b.bin", std::string("GIF89a\0\1\3", 9)));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text,
              "The files differ but the differences are not viewable.\r\nOne of the files may "
              "contain non-ASCII characters. \r\n");
    EXPECT_TRUE(Idle());
}

TEST_F(DriverTest, ForceTextShowsFilesWithNulBytes) {
    session.ViewOptions.ForceTextCompare = true;
    Compare(dir.Write("a.html", std::string("a\0b\nsame\n", 9)),
            dir.Write("b.html", std::string("a\0c\nsame\n", 9)));
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_EQ(window->Diffs(), (DiffList{{1, 1, DiffKind::Changed}}));
}

TEST_F(DriverTest, AnUnknownFormatStopsTheRun) {
    Compare(dir.Write("a.dat", std::string("\x01\x02\x03\x00\xff", 5)), dir.Write("b.html", "x\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Unknown Original File Format");
    EXPECT_NE(prompter->boxes[0].text.find("Unrecognized file format."), std::string::npos)
        << prompter->boxes[0].text;
    EXPECT_TRUE(Idle());
}

TEST_F(DriverTest, AnUnreachableAddressIsADownloadFailure) {
    session.ViewOptions.RunFromCommandLine = true;
    Compare("http://127.0.0.1:9/page.html", dir.Write("b.html", "x\n"));
    EXPECT_EQ(session.ViewOptions.CommandLineMessage,
              "Web Page Download failure.  Original Web page was NOT downloaded successfully"
              "\r\n\r\nMake sure that you are connected to the Internet\r\nand that the web "
              "page exists.");
}

TEST_F(DriverTest, AFileAddressIsFetchedComparedAndItsCopyRemoved) {
    const std::string a = dir.Write("a.html", "1\n2\n");
    Compare("file://" + a, dir.Write("b.html", "1\n3\n"));
    EXPECT_EQ(window->Diffs(), (DiffList{{2, 1, DiffKind::Changed}}));
    EXPECT_FALSE(session.ViewOptions.OriginalDownloadFile.empty());
    EXPECT_FALSE(
        std::filesystem::exists(session.ViewOptions.OriginalDownloadFile)); // the exit's clean-up
}

TEST_F(DriverTest, CommandLineWithTwoFilesComparesAtLoad) {
    const std::string a = dir.Write("a.html", "1\n"), b = dir.Write("b.html", "2\n");
    frmFileDiffs second(session, *fileDiff);
    int dialogues = 0;
    second.ShowModal = [&](QDialog& d) { ++dialogues, d.accept(); };
    second.Form_Load("\"" + a + "\" \"" + b + "\"");
    EXPECT_EQ(dialogues, 1); // "run the Compare command as the user would": the dialogue first
    EXPECT_EQ(second.OriginalFileBox()->currentText().toStdString(), a);
    EXPECT_EQ(second.Diffs(), (DiffList{{1, 1, DiffKind::Changed}}));
}

TEST_F(DriverTest, FirstRunOpensTheWelcomePage) {
    gAppPath = dir.Path(); // no settings file here
    frmFileDiffs second(session, *fileDiff);
    second.Form_Load("");
    EXPECT_EQ(prompter->helpContexts, std::vector<int>{7});
}

} // namespace
} // namespace orvane::test
