#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "settings/IniFileName.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QMimeData>
#include <QTextEdit>
#include <QToolBar>
#include <QUrl>
#include <fstream>
#include <sstream>

namespace orvane::test {
namespace {

class WindowTest : public DriverTest {
  protected:
    void ShowResults() {
        Compare(dir.Write("a.html", "A\nB\nC\nD\n"), dir.Write("b.html", "A\nX\nC\nD\nE\n"));
        ASSERT_FALSE(Idle());
    }
    QAction* Item(const char* name, int index = -1) {
        return window->CommandSurface().Item(name, index);
    }
};

TEST_F(WindowTest, CommandsFollowTheResults) {
    EXPECT_TRUE(Item("mnuFileCompare")->isEnabled());
    EXPECT_FALSE(Item("mnuFileFindNext")->isEnabled());
    EXPECT_EQ(Item("mnuFileCompare")->shortcut(), QKeySequence("Ctrl+M"));
    EXPECT_EQ(Item("mnuFileShowPreviousDiff")->shortcut(), QKeySequence("Shift+F7"));
    EXPECT_EQ(Item("mnuOptionsComparisonModeOption", 2)->text(), "Compare Text Content");
    ShowResults();
    EXPECT_TRUE(Item("mnuFileCompare")->isEnabled());
    EXPECT_FALSE(Item("mnuFileFindNext")->isEnabled()); // only after a first search
    EXPECT_FALSE(Item("mnuFileNextBookmark")->isEnabled());
}

TEST_F(WindowTest, ToolbarHasTwentyPlacesAndIsDeadDuringARun) {
    Commands& c = window->CommandSurface();
    int buttons = 0;
    for (int place = 1; place <= 20; ++place)
        buttons += c.Button(place) != nullptr;
    EXPECT_EQ(buttons, 16);
    EXPECT_EQ(c.Button(4), nullptr);
    EXPECT_EQ(c.Button(3)->toolTip(), "Compare the Files");
    EXPECT_EQ(c.Button(20)->toolTip(), "Exit");
    for (int place : {1, 3, 5, 19})
        EXPECT_FALSE(c.Button(place)->icon().pixmap(20, 20, QIcon::Disabled).isNull());
    // The Compare button runs Compare, which refuses empty boxes with a box.
    c.Button(3)->trigger();
    EXPECT_EQ(prompter->boxes.size(), 1u);
}

TEST_F(WindowTest, ClickMovesTheOtherGridAndTheArrow) {
    ShowResults();
    window->OriginalGrid().SetRow(5);
    window->Grid_Click(Side::Original);
    EXPECT_EQ(window->RevisedGrid().Row(), 5);
    EXPECT_EQ(window->OriginalGrid().RowPicture(5), CellPictureId::Arrow);
    EXPECT_EQ(window->OriginalGrid().RowPicture(1), CellPictureId::None);
    window->RevisedGrid().SetRow(2);
    window->Grid_Click(Side::Revised);
    EXPECT_EQ(window->OriginalGrid().Row(), 2);
    EXPECT_EQ(window->OriginalGrid().RowPicture(2), CellPictureId::DifferArrow);
    EXPECT_FALSE(window->RowsHaveNoColour());
    window->OriginalGrid().SetRow(5);
    window->RevisedGrid().SetRow(5);
    EXPECT_TRUE(window->EitherLineEmpty()); // a blank row faces the added line
}

TEST_F(WindowTest, ClicksOnThePromptDoNothing) {
    window->Grid_Click(Side::Original);
    EXPECT_EQ(window->OriginalGrid().RowPicture(1), CellPictureId::None);
}

TEST_F(WindowTest, TypingInAFileBoxReturnsToIdle) {
    ShowResults();
    emit window->RevisedFileBox()->lineEdit()->textEdited("x");
    EXPECT_TRUE(Idle());
    ShowResults();
    window->SuppressFileBoxEvents = true;
    emit window->OriginalFileBox()->lineEdit()->textEdited("x");
    EXPECT_FALSE(Idle());
}

TEST_F(WindowTest, DropsFillOnlyTheirBox) {
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile("/tmp/first.html"), QUrl::fromLocalFile("/tmp/b.html")});
    window->RevisedFileBox()->setEditText("kept");
    EXPECT_TRUE(window->DropOnFileBox(*window->OriginalFileBox(), files));
    EXPECT_EQ(window->OriginalFileBox()->currentText(), "/tmp/first.html");
    EXPECT_EQ(window->RevisedFileBox()->currentText(), "kept");
    QMimeData text;
    text.setText("http://example.org/page.html");
    EXPECT_TRUE(window->DropOnFileBox(*window->RevisedFileBox(), text));
    EXPECT_EQ(window->RevisedFileBox()->currentText(), "http://example.org/page.html");
    QMimeData image;
    image.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_FALSE(window->DropOnFileBox(*window->RevisedFileBox(), image));
}

TEST_F(WindowTest, RegionsFollowTheDesignArithmetic) {
    window->resize(900, 600);
    window->Form_Resize();
    const Region& grid = window->Regions().grdRevisedFile;
    const FlexGridView* view = window->GridView(Side::Revised);
    const double perTwip = window->logicalDpiX() / 1440.0;
    EXPECT_NEAR(view->geometry().left(), grid.Left * perTwip, 1);
    EXPECT_NEAR(view->geometry().width(), grid.Width * perTwip, 1);
    EXPECT_NEAR(window->Regions().grdOriginalFile.Left, 510, 0.1);
}

TEST_F(WindowTest, OptionsAreSavedWhenTheWindowCloses) {
    SetProgramIniFileName("window-test.ini");
    Item("mnuOptionsIgnoreCase")->trigger();
    Item("mnuOptionsShowLineNumbers")->trigger();
    EXPECT_TRUE(session.ViewOptions.IgnoreCase);
    EXPECT_FALSE(session.ViewOptions.ShowLineNumbers);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Show Line Numbers");
    window->close();
    std::ifstream in(dir.Path() + "window-test.ini");
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_NE(text.str().find("IgnoreCase=True"), std::string::npos) << text.str();
    EXPECT_NE(text.str().find("ShowLineNumbers=False"), std::string::npos);
    SetProgramIniFileName("");
}

TEST_F(WindowTest, VisualAspectPushesTheOutputToOneWindow) {
    // Code, with the boxes showing their fillers: compares at once, and the filler is no file.
    Item("mnuOptionsComparisonModeOption", 1)->trigger();
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "File Does Not Exist");
    prompter->boxes.clear();
    window->ComparisonModeOption(ChoiceIndex(ComparisonMode::Visual));
    EXPECT_EQ(session.ViewOptions.OutputFormat, OutputFormat::OneWindow);
    EXPECT_TRUE(Item("mnuOptionsOutputFormatOption", 0)->isChecked());
    EXPECT_FALSE(Item("mnuOptionsOutputFormatOption", 1)->isChecked());
    prompter->boxes.clear();
    window->OutputFormatOption(ChoiceIndex(OutputFormat::SideBySide));
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Side by Side Not Supported");
    EXPECT_EQ(session.ViewOptions.OutputFormat, OutputFormat::OneWindow);
    EXPECT_FALSE(Item("mnuOptionsOutputFormatOption", 1)->isChecked());
}

// Visual Aspect and One Window are offered, and a stored choice of them is kept as read.
TEST_F(WindowTest, VisualAspectAndOneWindowAreOfferedAndKept) {
    EXPECT_TRUE(Item("mnuOptionsComparisonModeOption", 0)->isEnabled());
    EXPECT_TRUE(Item("mnuOptionsOutputFormatOption", 0)->isEnabled());
    EXPECT_EQ(session.ViewOptions.ComparisonMode, ComparisonMode::Visual); // the first-run default
    EXPECT_TRUE(Item("mnuOptionsComparisonModeOption", 0)->isChecked());
}

} // namespace
} // namespace orvane::test

namespace orvane::test {
namespace {

TEST_F(DriverTest, AGoodComparisonIsOfferedAgainInTheFileBoxes) {
    EXPECT_EQ(window->OriginalFileBox()->itemText(0), "Enter Original HTML file here");
    const std::string a = dir.Write("a.html", "1\n"), b = dir.Write("b.html", "2\n");
    Compare(a, b);
    EXPECT_EQ(window->OriginalFileBox()->count(), 1);
    EXPECT_EQ(window->OriginalFileBox()->itemText(0).toStdString(), a);
    EXPECT_EQ(window->RevisedFileBox()->itemText(0).toStdString(), b);
    frmFileDiffs next(session, *fileDiff); // a later start finds them in the settings file
    next.Form_Load("");
    EXPECT_EQ(next.OriginalFileBox()->currentText().toStdString(), a);
    Compare(a, a); // identical: nothing is recorded
    EXPECT_EQ(window->RevisedFileBox()->count(), 1);
}

} // namespace
} // namespace orvane::test
