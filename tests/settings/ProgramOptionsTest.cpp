#include "settings/ProgramOptions.h"
#include "settings/MemoryOptionsWindow.h"

#include "SettingsTestSupport.h"
#include "frame/RuntimeError.h"
#include "settings/ExtractionOptions.h"
#include "settings/IniFileName.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include "settings/ProfileFile.h"

#include <algorithm>
#include <csignal>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane::test {
namespace {

using FakeWindow = MemoryOptionsWindow;
using Font = MemoryOptionsWindow::Font;

// The file as Save writes it from the first-run state: 25 keys in five sections.
const std::string kDefaultFile = "[Compare]\r\n"
                                 "IgnoreCase=False\r\n"
                                 "IgnoreWhiteSpace=False\r\n"
                                 "IgnoreTextFormatting=False\r\n"
                                 "ShowLineNumbers=True\r\n"
                                 "ComparisonMode=Visual\r\n"
                                 "OutputFormat=SideBySide\r\n"
                                 "ComparisonLevel=Character\r\n"
                                 "ShowDialogueBeforeComparison=True\r\n"
                                 "ShowInternetSourceReminder=True\r\n"
                                 "[Grids]\r\n"
                                 "ShowGridLines=True\r\n"
                                 "FontBold=False\r\n"
                                 "FontItalic=False\r\n"
                                 "FontName=Courier New\r\n"
                                 "FontSize=8\r\n"
                                 "[Text Extraction]\r\n"
                                 "ExtractionEnginePrefs=InternalMSWord\r\n"
                                 "OriginalFormat=True\r\n"
                                 "SingleLineParagraph=False\r\n"
                                 "LimitLineLength=False\r\n"
                                 "MaxNumCharsPerLine=79\r\n"
                                 "MSWordLimitLineLength=False\r\n"
                                 "MSWordMaxNumCharsPerLine=79\r\n"
                                 "MSWordSaveAsFormat=2\r\n"
                                 "TextWithLayoutConverterPath=C:\\Program Files\\Common "
                                 "Files\\Microsoft Shared\\TEXTCONV\\TXTLYT32.CNV\r\n"
                                 "[Miscellaneous]\r\n"
                                 "HTMLEditorFileSpec=Notepad.exe\r\n"
                                 "[Form]\r\n"
                                 "PaneTooltips=False\r\n";

class ProgramOptions : public ProgramFolderTest {
  protected:
    void SetUp() override {
        ProgramFolderTest::SetUp();
        SetProgramIniFileName("orvane.ini");
    }
    void TearDown() override {
        SetProgramIniFileName("");
        ProgramFolderTest::TearDown();
    }

    void Read(const std::string& file) {
        WriteFile("orvane.ini", file);
        modIniFile::ReadProgramOptionsFromIniFile(session, Window);
    }
    void Save() { modIniFile::SaveProgramOptionsToIniFile(session, Window); }
    bool Checked(const std::string& menu, int index = -1) const {
        return Window.MenuChecked(menu, index);
    }
    bool HasLine(const std::string& line) const {
        return ("\n" + ReadFile("orvane.ini")).find("\n" + line + "\r\n") != std::string::npos;
    }
    void ExpectReadFailure(long number) {
        ASSERT_EQ(Prompts->boxes.size(), 1u);
        EXPECT_EQ(Prompts->boxes[0].title,
                  "Unexpected Error in modIniFile.ReadProgramOptionsFromIniFile");
        EXPECT_NE(Prompts->boxes[0].text.find("No: " + std::to_string(number)), std::string::npos);
    }

    Session session;
    FakeWindow Window;
};

TEST_F(ProgramOptions, EmptyFileGivesDefaultsAndSaveWritesAllKeys) {
    Read("");
    const auto& v = session.ViewOptions;
    EXPECT_EQ(v.ComparisonMode, ComparisonMode::Visual);
    EXPECT_EQ(v.OutputFormat, OutputFormat::SideBySide);
    EXPECT_EQ(v.ComparisonLevel, ComparisonLevel::Character);
    EXPECT_TRUE(v.ShowLineNumbers && v.ShowDialogueBeforeComparison &&
                v.ShowInternetSourceReminder);
    EXPECT_FALSE(v.IgnoreCase || v.IgnoreWhiteSpace || v.IgnoreTextFormatting ||
                 v.ForceTextCompare);
    EXPECT_TRUE(Checked("mnuOptionsShowLineNumbers") && Checked("mnuOptionsShowDialogue") &&
                Checked("mnuOptionsShowInternetSourceReminder") &&
                Checked("mnuOptionsShowGridLines"));
    EXPECT_TRUE(Checked("mnuOptionsComparisonModeOption", 0) &&
                Checked("mnuOptionsOutputFormatOption", 1) &&
                Checked("mnuOptionsDiffDetailOption", 0));
    EXPECT_FALSE(Checked("mnuOptionsIgnoreCase") || Checked("mnuOptionsDisplayGridTooltips"));
    for (const char* grid : {kGrdOriginalFile, kGrdRevisedFile}) {
        EXPECT_EQ(Window.GridLines[grid], 1);
        EXPECT_EQ(Window.Fonts[grid].Name, "Courier New");
        EXPECT_EQ(Window.Fonts[grid].Size, 8.0);
    }
    EXPECT_EQ(session.HTMLEditorFileSpec, "Notepad.exe");
    EXPECT_TRUE(Prompts->boxes.empty());
    std::filesystem::remove(PathOf("orvane.ini"));
    Save();
    EXPECT_EQ(ReadFile("orvane.ini"), kDefaultFile);
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"orvane.ini"});
}

TEST_F(ProgramOptions, OnlyExactTrueIsTrue) {
    Read("[Compare]\r\nIgnoreCase=TRUE\r\nIgnoreWhiteSpace=True\r\nShowLineNumbers=true\r\n"
         "[Grids]\r\nShowGridLines=yes\r\nFontBold=True\r\n");
    EXPECT_FALSE(session.ViewOptions.IgnoreCase);
    EXPECT_TRUE(session.ViewOptions.IgnoreWhiteSpace);
    EXPECT_TRUE(Checked("mnuOptionsIgnoreWhitespace"));
    EXPECT_FALSE(session.ViewOptions.ShowLineNumbers);
    EXPECT_FALSE(Checked("mnuOptionsShowLineNumbers"));
    EXPECT_EQ(Window.GridLines[kGrdRevisedFile], 0);
    EXPECT_TRUE(Window.Fonts[kGrdRevisedFile].Bold);
}

TEST_F(ProgramOptions, UnknownWordLeavesFieldAndChecksItsItem) {
    session.ViewOptions.ComparisonLevel = ComparisonLevel::Line;
    Window.SetMenuChecked("mnuOptionsComparisonModeOption", 2, true);
    Read("[Compare]\r\nComparisonMode=visual\r\nOutputFormat=OneWindow\r\nComparisonLevel=x\r\n");
    EXPECT_EQ(session.ViewOptions.ComparisonMode, ComparisonMode::Visual);
    EXPECT_TRUE(Checked("mnuOptionsComparisonModeOption", 0));
    EXPECT_TRUE(Checked("mnuOptionsComparisonModeOption", 2)); // never cleared
    EXPECT_EQ(session.ViewOptions.OutputFormat, OutputFormat::OneWindow);
    EXPECT_TRUE(Checked("mnuOptionsOutputFormatOption", 0));
    EXPECT_EQ(session.ViewOptions.ComparisonLevel, ComparisonLevel::Line);
    EXPECT_TRUE(Checked("mnuOptionsDiffDetailOption", 2));
}

TEST_F(ProgramOptions, AnyOtherEnginePreferenceMeansWordFirst) {
    Read("[Text Extraction]\r\nExtractionEnginePrefs=internalmsword\r\n");
    EXPECT_EQ(session.ExtractionOptions.EnginePreference, 1);
    Save();
    Read(ReadFile("orvane.ini"));
    EXPECT_EQ(session.ExtractionOptions.EnginePreference, 1);
    EXPECT_TRUE(HasLine("ExtractionEnginePrefs=MSWordInternal"));
}

// The failure is reported, but the keys after it are still read, so a save loses nothing.
TEST_F(ProgramOptions, LettersInWidthAreReportedAndTheLaterKeysStillRead) {
    Read("[Text Extraction]\r\nMaxNumCharsPerLine=wide\r\nMSWordSaveAsFormat=5\r\n"
         "[Miscellaneous]\r\nHTMLEditorFileSpec=/usr/bin/gedit\r\n");
    ExpectReadFailure(err::TypeMismatch);
    EXPECT_EQ(session.ExtractionOptions.MaxNumCharsPerLine, 79);
    EXPECT_EQ(session.ExtractionOptions.MSWordSaveAsFormat, 5);
    EXPECT_EQ(session.TextWithLayoutConverterPath,
              "C:\\Program Files\\Common Files\\Microsoft Shared\\TEXTCONV\\TXTLYT32.CNV");
    EXPECT_EQ(session.HTMLEditorFileSpec, "/usr/bin/gedit");

    Prompts->boxes.clear();
    Read("[Text Extraction]\r\nMaxNumCharsPerLine=wide\r\nMSWordMaxNumCharsPerLine=x\r\n"
         "MSWordSaveAsFormat=5\r\n");
    EXPECT_TRUE(Prompts->boxes.empty());
    EXPECT_EQ(session.ExtractionOptions.MSWordMaxNumCharsPerLine, 79);
    EXPECT_EQ(session.ExtractionOptions.MSWordSaveAsFormat, 5);
}

// Two bad values give one box, not a cascade.
TEST_F(ProgramOptions, SeveralBadValuesGiveOneBox) {
    Read("[Text Extraction]\r\nMaxNumCharsPerLine=1e30\r\nMSWordSaveAsFormat=1e30\r\n"
         "[Miscellaneous]\r\nHTMLEditorFileSpec=kate\r\n");
    EXPECT_EQ(Prompts->boxes.size(), 1u);
    EXPECT_EQ(session.HTMLEditorFileSpec, "kate");
}

TEST_F(ProgramOptions, WordWidthFollowsInternalWidth) {
    Read("[Text Extraction]\r\nMaxNumCharsPerLine=100\r\nMSWordMaxNumCharsPerLine=60\r\n");
    EXPECT_EQ(session.ExtractionOptions.MaxNumCharsPerLine, 100);
    EXPECT_EQ(session.ExtractionOptions.MSWordMaxNumCharsPerLine, 100);
    Save();
    EXPECT_TRUE(HasLine("MaxNumCharsPerLine=100"));
    EXPECT_TRUE(HasLine("MSWordMaxNumCharsPerLine=100"));
}

TEST_F(ProgramOptions, FontSizeIsLeadingNumber) {
    Read("[Grids]\r\nFontSize=9.5pt\r\nFontName=DejaVu Sans Mono\r\nFontItalic=True\r\n");
    for (const char* grid : {kGrdOriginalFile, kGrdRevisedFile}) {
        EXPECT_EQ(Window.Fonts[grid].Size, 9.5);
        EXPECT_EQ(Window.Fonts[grid].Name, "DejaVu Sans Mono");
        EXPECT_TRUE(Window.Fonts[grid].Italic);
    }
    Window.Fonts[kGrdRevisedFile] = Font{}; // Save takes the Original grid's font
    Save();
    EXPECT_TRUE(HasLine("FontItalic=True"));
    EXPECT_TRUE(HasLine("FontName=DejaVu Sans Mono"));
    EXPECT_TRUE(HasLine("FontSize=9.5"));
}

TEST_F(ProgramOptions, ForceTextCompareIsReadButNeverWritten) {
    Read("[Compare]\r\nForceTextCompare=True\r\n");
    EXPECT_TRUE(session.ViewOptions.ForceTextCompare);
    session.ViewOptions.ForceTextCompare = false;
    for (int run = 0; run < 3; ++run) {
        Save();
        Read(ReadFile("orvane.ini"));
    }
    EXPECT_TRUE(session.ViewOptions.ForceTextCompare);
    EXPECT_EQ(ReadFile("orvane.ini").find("[Compare]\r\nForceTextCompare=True\r\nIgnoreCase="), 0u);
}

TEST_F(ProgramOptions, ValueOutsideWordTableKeepsOldLine) {
    Read("[Compare]\r\nComparisonMode=Code\r\n");
    session.ViewOptions.ComparisonMode = static_cast<ComparisonMode>(9);
    session.ViewOptions.ComparisonLevel = ComparisonLevel::Word;
    Save();
    EXPECT_TRUE(HasLine("ComparisonMode=Code"));
    EXPECT_TRUE(HasLine("ComparisonLevel=Word"));
}

TEST_F(ProgramOptions, SavedStateReadsBackTheSame) {
    Read("");
    auto& v = session.ViewOptions;
    v.IgnoreCase = v.IgnoreTextFormatting = true;
    v.ShowInternetSourceReminder = false;
    v.ComparisonMode = ComparisonMode::Text;
    v.OutputFormat = OutputFormat::OneWindow;
    v.ComparisonLevel = ComparisonLevel::Line;
    auto& e = session.ExtractionOptions;
    e = clsExtractionOptions{false, true, true, 66, true, 66, 7, 3};
    session.HTMLEditorFileSpec = "/usr/bin/editor with blanks";
    session.TextWithLayoutConverterPath = "";
    Window.SetMenuChecked("mnuOptionsShowGridLines", -1, false);
    Window.SetMenuChecked("mnuOptionsDisplayGridTooltips", -1, true);
    Window.Fonts[kGrdOriginalFile] = Font{"Liberation Mono", 10.25, true, true};
    Save();

    session = Session{};
    Window = FakeWindow{};
    modIniFile::ReadProgramOptionsFromIniFile(session, Window);
    EXPECT_TRUE(session.ViewOptions.IgnoreCase && session.ViewOptions.IgnoreTextFormatting);
    EXPECT_FALSE(session.ViewOptions.ShowInternetSourceReminder);
    EXPECT_EQ(session.ViewOptions.ComparisonMode, ComparisonMode::Text);
    EXPECT_EQ(session.ViewOptions.OutputFormat, OutputFormat::OneWindow);
    EXPECT_EQ(session.ViewOptions.ComparisonLevel, ComparisonLevel::Line);
    const auto& r = session.ExtractionOptions;
    EXPECT_EQ(std::tie(r.OriginalFormat, r.LimitLineLength, r.SingleLineParagraph,
                       r.MaxNumCharsPerLine, r.MSWordLimitLineLength, r.MSWordMaxNumCharsPerLine,
                       r.MSWordSaveAsFormat, r.EnginePreference),
              std::make_tuple(false, true, true, 66, true, 66, 7, 1));
    EXPECT_EQ(session.HTMLEditorFileSpec, "/usr/bin/editor with blanks");
    EXPECT_EQ(session.TextWithLayoutConverterPath,
              "C:\\Program Files\\Common Files\\Microsoft Shared\\TEXTCONV\\TXTLYT32.CNV");
    EXPECT_FALSE(Checked("mnuOptionsShowGridLines"));
    EXPECT_EQ(Window.GridLines[kGrdOriginalFile], 0);
    EXPECT_TRUE(Checked("mnuOptionsDisplayGridTooltips"));
    const Font& f = Window.Fonts[kGrdRevisedFile];
    EXPECT_EQ(std::tie(f.Name, f.Size, f.Bold, f.Italic),
              std::make_tuple("Liberation Mono", 10.25, true, true));
    EXPECT_TRUE(Prompts->boxes.empty());
}

TEST(IniFileName, IsExecutableBaseNameWithIni) {
    SetProgramIniFileName("");
    EXPECT_EQ(ProgramIniFileName(), "settings_tests.ini");
    SetProgramIniFileName("other.ini");
    EXPECT_EQ(ProgramIniFileName(), "other.ini");
    SetProgramIniFileName("");
}

// A window whose grid font cannot be asked for: the process dies half-way through a save, after
// the Compare section and before the rest, as a kill or a power cut would end it.
class DyingWindow : public FakeWindow {
  public:
    std::string GridFontName(const std::string&) const override {
        std::raise(SIGKILL);
        return {};
    }
};

TEST_F(ProgramOptions, ASaveIsOneRewriteOfTheWholeFile) {
    Read(kDefaultFile);
    session.ViewOptions.IgnoreCase = true;
    session.ExtractionOptions.MaxNumCharsPerLine = 100;
    session.HTMLEditorFileSpec = "kate";
    const std::size_t before = profile::RewriteCount(PathOf("orvane.ini"));
    Save();
    EXPECT_EQ(profile::RewriteCount(PathOf("orvane.ini")), before + 1);
    EXPECT_TRUE(HasLine("IgnoreCase=True") && HasLine("MaxNumCharsPerLine=100") &&
                HasLine("HTMLEditorFileSpec=kate"));
    EXPECT_EQ(FolderEntries(), std::vector<std::string>{"orvane.ini"});
}

TEST_F(ProgramOptions, AKillDuringASaveLeavesTheOldFileWhole) {
    Read(kDefaultFile);
    session.ViewOptions.IgnoreCase = true; // written before the kill, in the Compare section
    session.HTMLEditorFileSpec = "kate";   // written after it
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        DyingWindow dying;
        dying.Fonts = Window.Fonts;
        modIniFile::SaveProgramOptionsToIniFile(session, dying);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(ReadFile("orvane.ini"), kDefaultFile); // no mix of old and new values
}

TEST_F(ProgramOptions, TheNextStartRemovesAStaleTemporaryOfAKilledSave) {
    const pid_t gone = fork(); // a process id that surely no longer runs
    ASSERT_GE(gone, 0);
    if (gone == 0) _exit(0);
    ASSERT_EQ(waitpid(gone, nullptr, 0), gone);
    const std::string stale = ".orvane.ini." + std::to_string(gone) + ".3.tmp";
    const std::string living = ".orvane.ini." + std::to_string(getppid()) + ".0.tmp";
    WriteFile(stale, std::string(1 << 20, 'x'));
    WriteFile(living, "being written");
    WriteFile(".orvane.ini.notes.tmp", "not ours");
    WriteFile(".other.ini." + std::to_string(gone) + ".0.tmp", "another file's");
    Read(kDefaultFile);
    const auto entries = FolderEntries();
    EXPECT_EQ(std::count(entries.begin(), entries.end(), stale), 0);
    EXPECT_EQ(std::count(entries.begin(), entries.end(), living), 1);
    EXPECT_EQ(entries.size(), 4u); // the settings file and the three that are not stale
}

} // namespace
} // namespace orvane::test
