#include "dialogs/frmHTMLEditor.h"
#include "dialogs/frmTextExtractionOptions.h"
#include "dialogs/frmWhatAndHow.h"
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "tests/ui/DriverFixture.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

namespace orvane::test {
namespace {

using DialogsTest = DriverTest;

TEST_F(DialogsTest, WhatAndHowKeepsVisualAspectInOneWindow) {
    session.ViewOptions.ComparisonMode = ComparisonMode::Visual;
    session.ViewOptions.OutputFormat = OutputFormat::SideBySide;
    frmWhatAndHow d(session.ViewOptions);
    EXPECT_TRUE(d.OutputFormatOption(0)->isChecked());
    EXPECT_FALSE(d.OutputFormatOption(1)->isEnabled());
    d.ComparisonModeOption(1)->click(); // enables two windows without choosing it
    EXPECT_TRUE(d.OutputFormatOption(1)->isEnabled());
    EXPECT_TRUE(d.OutputFormatOption(0)->isChecked());
    d.OutputFormatOption(1)->click();
    d.optComparisonModes_Click(0); // back to visual: one window again
    EXPECT_TRUE(d.OutputFormatOption(0)->isChecked());
    d.ComparisonModeOption(2)->click();
    d.OutputFormatOption(1)->click();
    d.ShowDialogueBox()->setChecked(false);
    d.OKButton_Click();
    EXPECT_EQ(session.ViewOptions.ComparisonMode, ComparisonMode::Text);
    EXPECT_EQ(session.ViewOptions.OutputFormat, OutputFormat::SideBySide);
    EXPECT_FALSE(session.ViewOptions.ShowDialogueBeforeComparison);
    EXPECT_TRUE(d.ComparisonModeOption(0)->isEnabled());
    EXPECT_TRUE(d.OutputFormatOption(0)->isEnabled());
}

TEST_F(DialogsTest, TheSecondGuardOfTheOutputChoice) {
    session.ViewOptions.ComparisonMode = ComparisonMode::Visual;
    frmWhatAndHow d(session.ViewOptions);
    d.optOutputFormats_Click(1);
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].title, "Visual Aspect");
    EXPECT_TRUE(d.OutputFormatOption(0)->isChecked());
}

TEST_F(DialogsTest, CompareOffersTheDialogueAndMovesTheChecks) {
    session.ViewOptions.ShowDialogueBeforeComparison = true;
    window->ShowModal = [](QDialog& d) {
        auto& w = static_cast<frmWhatAndHow&>(d);
        w.ComparisonModeOption(1)->click();
        w.OutputFormatOption(1)->click();
        w.OKButton_Click();
    };
    window->OriginalFileBox()->setEditText(QString::fromStdString(dir.Write("a", "1\n")));
    window->RevisedFileBox()->setEditText(QString::fromStdString(dir.Write("b", "2\n")));
    window->mnuFileCompare_Click();
    EXPECT_TRUE(window->CommandSurface().Item("mnuOptionsComparisonModeOption", 1)->isChecked());
    EXPECT_FALSE(window->CommandSurface().Item("mnuOptionsComparisonModeOption", 0)->isChecked());
    EXPECT_EQ(window->Diffs(), (DiffList{{1, 1, DiffKind::Changed}}));
}

class NumberChecks : public DriverTest {
  protected:
    frmTextExtractionOptions& Dialog() {
        if (!dialog) dialog = std::make_unique<frmTextExtractionOptions>(session.ExtractionOptions);
        return *dialog;
    }
    template <typename W> W* Get(const char* name) {
        return static_cast<W*>(Dialog().Control(name));
    }
    std::unique_ptr<frmTextExtractionOptions> dialog;
};

TEST_F(NumberChecks, ThreeStepsAndTheFirstFailureEndsTheClick) {
    session.ExtractionOptions.OriginalFormat = false;
    Get<QRadioButton>("optFormatting(1)")->click();
    Get<QCheckBox>("chkFixedLineWidth")->click();
    EXPECT_EQ(Get<QLineEdit>("txtNumChars")->text(), "79");
    for (auto [text, message] : std::vector<std::pair<const char*, const char*>>{
             {"", "Please enter a number of characters."},
             {"abc", "Please enter a numeric value."},
             {"0", "You must have at least one character per line."}}) {
        Get<QLineEdit>("txtNumChars")->setText(text);
        Dialog().cmdOK_Click();
        ASSERT_FALSE(prompter->boxes.empty());
        EXPECT_EQ(prompter->boxes.back().text, message) << text;
        EXPECT_EQ(prompter->boxes.back().title, "Invalid Number of Chars");
    }
    EXPECT_FALSE(session.ExtractionOptions.LimitLineLength); // nothing written yet
    Get<QLineEdit>("txtNumChars")->setText("1e2");
    Get<QCheckBox>("chkSingleLineParagraph")->click();
    Get<QComboBox>("cboSaveAsFormats")->setCurrentIndex(4);
    Dialog().cmdOK_Click();
    EXPECT_TRUE(session.ExtractionOptions.LimitLineLength);
    EXPECT_EQ(session.ExtractionOptions.MaxNumCharsPerLine, 100);
    EXPECT_TRUE(session.ExtractionOptions.SingleLineParagraph);
    EXPECT_EQ(session.ExtractionOptions.MSWordSaveAsFormat, 7);
}

TEST_F(NumberChecks, RetainOriginalFormattingTurnsTheCustomOptionsOff) {
    session.ExtractionOptions.OriginalFormat = false;
    session.ExtractionOptions.LimitLineLength = true;
    session.ExtractionOptions.MaxNumCharsPerLine = 60;
    EXPECT_EQ(Get<QLineEdit>("txtNumChars")->text(), "60");
    Get<QLineEdit>("txtNumChars")->setText("bad");
    Get<QRadioButton>("optFormatting(0)")->click(); // unchecks Fixed Line Width: no check
    Dialog().cmdOK_Click();
    EXPECT_TRUE(prompter->boxes.empty());
    EXPECT_TRUE(session.ExtractionOptions.OriginalFormat);
    EXPECT_FALSE(session.ExtractionOptions.LimitLineLength);
    EXPECT_EQ(session.ExtractionOptions.MaxNumCharsPerLine, 60);
}

TEST_F(DialogsTest, HTMLEditorFallsBackToNotepadOnlyWhenEmpty) {
    session.HTMLEditorFileSpec = "/usr/bin/true";
    {
        frmHTMLEditor d(session.HTMLEditorFileSpec);
        EXPECT_EQ(d.FileSpecBox()->text(), "/usr/bin/true");
        d.FileSpecBox()->setText("   ");
        d.OKButton_Click();
        EXPECT_EQ(session.HTMLEditorFileSpec, "Notepad.exe");
    }
    {
        frmHTMLEditor d(session.HTMLEditorFileSpec);
        d.FileSpecBox()->setText("notepad.exe"); // not the special word: looked up, refused
        d.OKButton_Click();
        ASSERT_EQ(prompter->boxes.size(), 1u);
        EXPECT_EQ(prompter->boxes[0].text, "The file does not exist. Notepad will be used.");
        EXPECT_EQ(session.HTMLEditorFileSpec, "Notepad.exe"); // the old editor stays
    }
    {
        frmHTMLEditor d(session.HTMLEditorFileSpec);
        prompter->files.push_back("/usr/bin/env");
        d.cmdSelectHTMLEditor_Click();
        d.OKButton_Click();
        EXPECT_EQ(session.HTMLEditorFileSpec, "/usr/bin/env");
    }
}

TEST_F(DialogsTest, FontCommandAppliesToBothGridsAndCancelChangesNothing) {
    const QFont before = window->GridView(Side::Original)->font();
    window->CommandSurface().Item("mnuOptionsFont")->trigger();
    EXPECT_EQ(window->GridView(Side::Original)->font(), before);
    prompter->fonts.push_back({"DejaVu Sans Mono", 14, true, false});
    window->CommandSurface().Item("mnuOptionsFont")->trigger();
    EXPECT_EQ(prompter->fontTitles.back(), "Select Font");
    for (Side side : {Side::Original, Side::Revised}) {
        EXPECT_EQ(window->GridView(side)->font().pointSize(), 14);
        EXPECT_TRUE(window->GridView(side)->font().bold());
    }
    EXPECT_TRUE(prompter->boxes.empty());
}

} // namespace
} // namespace orvane::test

#include "dialogs/frmTestFileFormat.h"

namespace orvane::test {
namespace {

TEST_F(DialogsTest, TestFileFormatShowsWhatAComparisonWouldFind) {
    frmTestFileFormat d;
    d.cmdGetFormatInfo_Click();
    ASSERT_EQ(prompter->boxes.size(), 1u);
    EXPECT_EQ(prompter->boxes[0].text, "Please select a file.");
    d.Field("txtFileSpec")->setText(QString::fromStdString(dir.Path() + "missing.html"));
    d.cmdGetFormatInfo_Click();
    EXPECT_EQ(prompter->boxes.back().text, "The file does not exist.");
    prompter->files.push_back(dir.Write("page.html", "<!DOCTYPE html><p>hi</p>"));
    d.cmdSelectFile_Click();
    EXPECT_EQ(d.Field("txtFileFormatShortForm")->text().toStdString(), "HTML");
    d.DisplayFormatInfo(dir.Write("empty.txt", "")); // a .htm* name is HTML by name alone
    EXPECT_EQ(d.Field("txtFileFormatShortForm")->text().toStdString(), "!EMPTY");
    window->CommandSurface().Item("mnuHelpTroubleshootingFileFormat")->trigger();
    EXPECT_EQ(dialogues, std::vector<std::string>{"frmTestFileFormat"});
}

} // namespace
} // namespace orvane::test

#include "dialogs/frmAbout.h"

namespace orvane::test {
namespace {

TEST_F(DialogsTest, AboutNamesTheProgramAndFindsAnInformationTool) {
    window->CommandSurface().Item("mnuHelpAbout")->trigger();
    EXPECT_EQ(dialogues, std::vector<std::string>{"frmAbout"});
    EXPECT_TRUE(frmAbout::SystemInfoTool({"no-such-tool-here", "sh"}).ends_with("/sh"));
    EXPECT_EQ(frmAbout::SystemInfoTool({"no-such-tool-here"}), "");
}

} // namespace
} // namespace orvane::test
