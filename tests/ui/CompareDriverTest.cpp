#include "tests/ui/DriverFixture.h"

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::test {
namespace {

struct Refusal {
    const char* name;
    const char* original; // "@file" stands for an existing file
    const char* revised;
    const char* title;
    const char* text;
};

void PrintTo(const Refusal& r, std::ostream* os) {
    *os << r.name;
}

class Refusals : public DriverTest, public ::testing::WithParamInterface<Refusal> {
  protected:
    std::string Input(const char* spec) {
        const std::string s = spec;
        if (s == "@file") return dir.Write("page.html", "<p>x</p>\n");
        if (s == "@folder") return dir.Path().substr(0, dir.Path().size() - 1);
        if (s == "@missing") return dir.Path() + "missing.html";
        if (s == "@fifo") {
            const std::string fifo = dir.Path() + "x.html";
            ::mkfifo(fifo.c_str(), 0600);
            return fifo;
        }
        if (s == "@devzero") {
            const std::string link = dir.Path() + "zero.html";
            ::symlink("/dev/zero", link.c_str());
            return link;
        }
        return s;
    }
};

TEST_P(Refusals, ShowTheirBoxAndReturnToIdle) {
    const Refusal& r = GetParam();
    Compare(Input(r.original), Input(r.revised));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, r.title);
    EXPECT_EQ(prompter->boxes[0].text, r.text);
    EXPECT_EQ(prompter->boxes[0].icon, MsgIcon::Exclamation);
    EXPECT_TRUE(Idle());
    EXPECT_EQ(window->MousePointer(), PointerDefault);
}

TEST_P(Refusals, GoToTheMessageInAnUnattendedRun) {
    const Refusal& r = GetParam();
    gViewOptions->RunFromCommandLine = true;
    Compare(Input(r.original), Input(r.revised));
    if (std::string(r.title) == "No Original HTML File") { // the first check always uses a box
        EXPECT_EQ(prompter->boxes.size(), 1u);
        EXPECT_EQ(gViewOptions->CommandLineMessage, "");
    } else {
        EXPECT_TRUE(prompter->boxes.empty());
        EXPECT_EQ(gViewOptions->CommandLineMessage, std::string(r.title) + ".  " + r.text);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, Refusals,
    ::testing::Values(Refusal{"NoOriginal", "   ", "@file", "No Original HTML File",
                              "Please specify an Original HTML file."},
                      Refusal{"NoRevised", "@file", "", "No Revised HTML File",
                              "Please specify a Revised HTML file."},
                      Refusal{"BareHostOriginal", "www.example.org", "@file", "Invalid URL Format",
                              "Web Addresses must begin with HTTP://"},
                      Refusal{"BareHostRevised", "@file", "Www.example.org", "Invalid URL Format",
                              "Web Addresses must begin with HTTP://"},
                      Refusal{"MissingOriginal", "@missing", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      Refusal{"MissingRevised", "@file", "@missing", "File Does Not Exist",
                              "Revised file is not an existing file."},
                      Refusal{"FolderAsFile", "@folder", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      // reading a FIFO or a device would hang or grow without end
                      Refusal{"FifoAsFile", "@file", "@fifo", "File Does Not Exist",
                              "Revised file is not an existing file."},
                      Refusal{"DeviceLinkAsFile", "@devzero", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      Refusal{"DeviceAsFile", "/dev/zero", "@file", "File Does Not Exist",
                              "Original file is not an existing file."},
                      // a bare host name is refused before any look at the disk
                      Refusal{"BareHostBeforeMissing", "wwwpage.html", "@missing",
                              "Invalid URL Format", "Web Addresses must begin with HTTP://"}),
    [](const auto& info) { return std::string(info.param.name); });

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
    gViewOptions->IgnoreCase = true;
    Compare(dir.Write("a.html", "<P>Hello</P>\n"), dir.Write("b.html", "<p>HELLO</p>\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "The files are identical");
}

TEST_F(DriverTest, DifferencesFillTheGridsAndTheList) {
    Compare(dir.Write("a.html", "A\nB\nC\nD\n"), dir.Write("b.html", "A\nX\nC\nD\nE\n"));
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_FALSE(Idle());
    EXPECT_EQ(window->Diffs(), (DiffList{"2-1-14270416", "5-1-10605047"}));
    EXPECT_EQ(window->OriginalGrid().Rows(), 7);
    EXPECT_EQ(window->RevisedGrid().Rows(), 7);
    EXPECT_EQ(window->RevisedGrid().RowText(5), " 5:E");
    // The results open at the first difference.
    EXPECT_EQ(window->OriginalGrid().Row(), 2);
    EXPECT_EQ(window->OriginalGrid().RowPicture(2), CellPictureId::DifferArrow);
    EXPECT_EQ(window->OriginalGrid().RowPicture(1), CellPictureId::None);
    EXPECT_TRUE(window->OriginalGrid().Redraw());
    EXPECT_EQ(window->MousePointer(), PointerDefault);
    EXPECT_EQ(gViewOptions->OriginalFile, dir.Path() + "a.html");
}

TEST_F(DriverTest, ANewRunReplacesTheOldResults) {
    Compare(dir.Write("a.html", "1\n2\n3\n"), dir.Write("b.html", "1\n3\n"));
    EXPECT_EQ(window->Diffs(), DiffList{"2-1-10605047"});
    Compare(dir.Write("c.html", "x\n"), dir.Write("d.html", "y\n"));
    EXPECT_EQ(window->Diffs(), DiffList{"1-1-14270416"});
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
    gViewOptions->ForceTextCompare = true;
    Compare(dir.Write("a.html", std::string("a\0b\nsame\n", 9)),
            dir.Write("b.html", std::string("a\0c\nsame\n", 9)));
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_EQ(window->Diffs(), DiffList{"1-1-14270416"});
}

TEST_F(DriverTest, TheOneWindowReportIsRefusedPlainly) {
    gViewOptions->OutputFormat = OutputOneWindow;
    Compare(dir.Write("a.html", "1\n"), dir.Write("b.html", "2\n"));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Compare Files");
    EXPECT_TRUE(Idle());
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
    gViewOptions->RunFromCommandLine = true;
    Compare("http://127.0.0.1:9/page.html", dir.Write("b.html", "x\n"));
    EXPECT_EQ(gViewOptions->CommandLineMessage,
              "Web Page Download failure.  Original Web page was NOT downloaded successfully"
              "\r\n\r\nMake sure that you are connected to the Internet\r\nand that the web "
              "page exists.");
}

TEST_F(DriverTest, AFileAddressIsFetchedComparedAndItsCopyRemoved) {
    const std::string a = dir.Write("a.html", "1\n2\n");
    Compare("file://" + a, dir.Write("b.html", "1\n3\n"));
    EXPECT_EQ(window->Diffs(), DiffList{"2-1-14270416"});
    EXPECT_FALSE(gViewOptions->OriginalDownloadFile.empty());
    EXPECT_FALSE(
        std::filesystem::exists(gViewOptions->OriginalDownloadFile)); // the exit's clean-up
}

TEST_F(DriverTest, CommandLineWithTwoFilesComparesAtLoad) {
    const std::string a = dir.Write("a.html", "1\n"), b = dir.Write("b.html", "2\n");
    frmFileDiffs second;
    int dialogues = 0;
    second.ShowModal = [&](QDialog& d) { ++dialogues, d.accept(); };
    second.Form_Load("\"" + a + "\" \"" + b + "\"");
    EXPECT_EQ(dialogues, 1); // "run the Compare command as the user would": the dialogue first
    EXPECT_EQ(second.OriginalFileBox()->currentText().toStdString(), a);
    EXPECT_EQ(second.Diffs(), DiffList{"1-1-14270416"});
}

TEST_F(DriverTest, FirstRunOpensTheWelcomePage) {
    gAppPath = dir.Path(); // no settings file here
    frmFileDiffs second;
    second.Form_Load("");
    EXPECT_EQ(prompter->helpContexts, std::vector<int>{7});
}

} // namespace
} // namespace orvane::test
