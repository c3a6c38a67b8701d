#pragma once
// The menu tree and the toolbar of the main window, as data: names, captions, access keys and
// shortcuts exactly as users know them.
#include <array>

namespace orvane {

struct MenuEntry {
    int level;            // 1 top menu, 2 item, 3 sub-item
    const char* name;     // object name; a control array member carries its index "(i)"
    const char* caption;  // "-" is a separator
    const char* shortcut; // Qt key sequence text, or ""
};

inline constexpr MenuEntry kMenuTable[] = {
    {1, "mnuFile", "&File", ""},
    {2, "mnuFileSelectOriginalFile", "Original HTML File...", "Ctrl+O"},
    {2, "mnuFileSelectRevisedFile", "Revised HTML File...", "Ctrl+R"},
    {2, "mnuFileCompare", "Compare the Files", "Ctrl+M"},
    {2, "mnuFileHyphenOne", "-", ""},
    {2, "mnuOpenEditOriginal", "Edit Original HTML File", ""},
    {2, "mnuOpenEditRevised", "Edit Revised HTML File", ""},
    {2, "mnuFileHyphen5", "-", ""},
    {2, "mnuFileShowFirstDiff", "Show First Difference", ""},
    {2, "mnuFileShowNextDiff", "Show &Next Difference", "F7"},
    {2, "mnuFileShowPreviousDiff", "Show &Previous Difference", "Shift+F7"},
    {2, "mnuFileShowLastDiff", "Show Last Difference", ""},
    {2, "mnuFileHyphenTwo", "-", ""},
    {2, "mnuFileFind", "&Find...", "Ctrl+F"},
    {2, "mnuFileFindNext", "Find Next", "F3"},
    {2, "mnuFileFindPrevious", "Find Previous", "Shift+F3"},
    {2, "mnuFileHyphen3", "-", ""},
    {2, "mnuFileToggleBookmark", "Toggle Bookmark", "Ctrl+F2"},
    {2, "mnuFileNextBookmark", "Next Bookmark", "F2"},
    {2, "mnuFilePreviousBookmark", "Previous Bookmark", "Shift+F2"},
    {2, "mnuFileClearAllBookmarks", "Clear All Bookmarks", ""},
    {2, "mnuFileHyphen4", "-", ""},
    {2, "mnuFilePrint", "Print...", "Ctrl+P"},
    {2, "mnuFilePrintToPdf", "Print to PDF...", ""},
    {2, "mnuFileExit", "E&xit", "Ctrl+Q"},
    {1, "mnuOptions", "&Options", ""},
    {2, "mnuOptionsComparisonMode", "Comparison Mode", ""},
    {3, "mnuOptionsComparisonModeOption(0)", "Compare Visual Aspects", ""},
    {3, "mnuOptionsComparisonModeOption(1)", "Compare Source Code", ""},
    {3, "mnuOptionsComparisonModeOption(2)", "Compare Text Content", ""},
    {2, "mnuOptionsOutputFormat", "Output Format", ""},
    {3, "mnuOptionsOutputFormatOption(0)", "Show Changes in Place (One Window)", ""},
    {3, "mnuOptionsOutputFormatOption(1)", "Show Changes Side by Side (Two Windows)", ""},
    {2, "mnuOptionsDiffDetail", "Difference Detail Level", ""},
    {3, "mnuOptionsDiffDetailOption(0)", "Show Diffs at Character Level", ""},
    {3, "mnuOptionsDiffDetailOption(1)", "Show Diffs at Word Level", ""},
    {3, "mnuOptionsDiffDetailOption(2)", "Show Diffs at Line Level", ""},
    {2, "mnuOptionsIgnoreCase", "Ignore &Case", ""},
    {2, "mnuOptionsIgnoreWhitespace", "Ignore &Whitespace", ""},
    {2, "mnuOptionsIgnoreTextFormatting", "Ignore Formatting Changes (Visual Aspects mode only)",
     ""},
    {2, "mnuOptionsShowDialogue", "Show Options Dialog Before Comparison", ""},
    {2, "mnuOptionsShowInternetSourceReminder", "Show Internet Source Reminder", ""},
    {2, "mnuOptionsHyphen1", "-", ""},
    {2, "mnuOptionsFont", "Change Font...", ""},
    {2, "mnuOptionsShowGridLines", "Show Grid Lines (Two-window view only)", ""},
    {2, "mnuOptionsDisplayGridTooltips", "Display Grid Tooltips", ""},
    {2, "mnuOptionsShowLineNumbers", "Show Line Numbers", ""},
    {2, "mnuOptionsHyphen2", "-", ""},
    {2, "mnuOptionsTextExtraction", "Text Extraction Options...", ""},
    {2, "mnuOptionsHTMLEditor", "Associated HTML Editor...", ""},
    {1, "mnuView", "&View", ""},
    {2, "mnuViewOriginalFile", "View Original File", ""},
    {3, "mnuViewOriginalFileInDefaultBrowser", "Launch in Default Browser", ""},
    {3, "mnuViewOriginalFileSourceCode", "Source Code", ""},
    {3, "mnuViewOriginalFileTextContent", "Text Content Only", ""},
    {2, "mnuViewRevisedFile", "View Revised File", ""},
    {3, "mnuViewRevisedFileInDefaultBrowser", "Launch in Default Browser", ""},
    {3, "mnuViewRevisedFileSourceCode", "Source Code", ""},
    {3, "mnuViewRevisedFileTextContent", "Text Content Only", ""},
    {1, "mnuHelp", "&Help", ""},
    {2, "mnuHelpContent", "&Contents", "F1"},
    {2, "mnuHelpVisitKestwickWeb", "&Visit the Kestwick site", ""},
    {2, "mnuHelpContactUs", "Contact &Us", ""},
    {2, "mnuHelpTroubleshooting", "Troubleshooting", ""},
    {3, "mnuHelpTroubleshootingFileFormat", "Check File Format...", ""},
    {2, "mnuHelpHyphen", "-", ""},
    {2, "mnuHelpAbout", "&About...", ""},
};

struct ToolbarPlace {
    int image;           // 1-based image number; 0 for a separator
    const char* toolTip; //
    const char* command; // menu item name; "" for a separator or the window's close
};

inline constexpr ToolbarPlace kToolbarTable[] = {
    {1, "Select Original File...", "mnuFileSelectOriginalFile"},
    {2, "Select Revised File...", "mnuFileSelectRevisedFile"},
    {3, "Compare the Files", "mnuFileCompare"},
    {0, "", ""},
    {4, "First Difference", "mnuFileShowFirstDiff"},
    {5, "Next Difference (F7)", "mnuFileShowNextDiff"},
    {6, "Previous Difference (Shift+F7)", "mnuFileShowPreviousDiff"},
    {7, "Last Difference", "mnuFileShowLastDiff"},
    {0, "", ""},
    {8, "Find (Ctrl+F)", "mnuFileFind"},
    {9, "Find Next (F3)", "mnuFileFindNext"},
    {10, "Find Previous (Shift+F3)", "mnuFileFindPrevious"},
    {0, "", ""},
    {11, "Toggle Bookmark (Ctrl+F2)", "mnuFileToggleBookmark"},
    {12, "Next Bookmark (F2)", "mnuFileNextBookmark"},
    {13, "Previous Bookmark (Shift+F2)", "mnuFilePreviousBookmark"},
    {14, "Clear All Bookmarks", "mnuFileClearAllBookmarks"},
    {0, "", ""},
    {15, "Print the differences", "mnuFilePrint"},
    {16, "Exit", ""},
};

} // namespace orvane
