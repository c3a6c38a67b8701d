#include "settings/ProgramOptions.h"

#include "frame/ErrorReporter.h"
#include "frame/RuntimeError.h"
#include "frame/SettingsFolder.h"
#include "settings/AtomicWrite.h"
#include "settings/ExtractionOptions.h"
#include "settings/IniFile.h"
#include "settings/IniFileName.h"
#include "settings/NumericText.h"
#include "settings/ProfileFile.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <charconv>
#include <span>

namespace orvane::modIniFile {
namespace {

// Multiple-choice options are stored as words, compared with case.
template <class Choice> struct WordChoice {
    const char* Word;
    Choice Value;
};
constexpr WordChoice<ComparisonMode> kComparisonModes[] = {{"Visual", ComparisonMode::Visual},
                                                           {"Code", ComparisonMode::Code},
                                                           {"Text", ComparisonMode::Text}};
constexpr WordChoice<OutputFormat> kOutputFormats[] = {{"OneWindow", OutputFormat::OneWindow},
                                                       {"SideBySide", OutputFormat::SideBySide}};
constexpr WordChoice<ComparisonLevel> kComparisonLevels[] = {
    {"Character", ComparisonLevel::Character},
    {"Word", ComparisonLevel::Word},
    {"Line", ComparisonLevel::Line}};

constexpr const char* kInternalFirst = "InternalMSWord";
constexpr const char* kWordFirst = "MSWordInternal";
constexpr const char* kGrids[] = {kGrdOriginalFile, kGrdRevisedFile};

std::string ReadText(CIniFile& ini, const char* key, const char* def) {
    ini.Key(key);
    return ini.GetStringValue(def);
}

// Only the exact word "True" is true, also where the default is "True".
bool ReadBoolean(CIniFile& ini, const char* key, const char* def) {
    return ReadText(ini, key, def) == "True";
}

// An unknown word leaves the field as it was.
template <class Choice>
void ReadWord(CIniFile& ini, const char* key, const char* def,
              std::span<const WordChoice<Choice>> words, Choice& field) {
    const std::string text = ReadText(ini, key, def);
    for (const auto& w : words)
        if (text == w.Word) field = w.Value;
}

void Write(CIniFile& ini, const char* key, const std::string& value) {
    ini.Key(key);
    ini.SetStringValue(value);
}

void WriteBoolean(CIniFile& ini, const char* key, bool value) {
    Write(ini, key, value ? "True" : "False");
}

// A value outside the table writes nothing: the file keeps its old line.
template <class Choice>
void WriteWord(CIniFile& ini, const char* key, std::span<const WordChoice<Choice>> words,
               Choice value) {
    for (const auto& w : words)
        if (value == w.Value) Write(ini, key, w.Word);
}

// One bad value is reported once, and the keys after it are read all the same: stopping at the
// first failure would let the next save write defaults over everything the user had set.
class KeyGuard {
  public:
    template <class Read> void operator()(Read read) {
        try {
            read();
        } catch (...) {
            if (!reported_) ReportUnexpectedError("modIniFile.ReadProgramOptionsFromIniFile", "");
            reported_ = true;
        }
    }

  private:
    bool reported_ = false;
};

void ReadCheckedOption(CIniFile& ini, OptionsWindow& window, const char* key, const char* def,
                       bool& field, const char* menu) {
    field = ReadBoolean(ini, key, def);
    window.SetMenuChecked(menu, -1, field);
}

template <class Choice>
void ReadChoiceOption(CIniFile& ini, OptionsWindow& window, const char* key, const char* def,
                      std::span<const WordChoice<Choice>> words, Choice& field,
                      const char* menuArray) {
    ReadWord(ini, key, def, words, field);
    window.SetMenuChecked(menuArray, ChoiceIndex(field), true);
}

void ReadCompareSection(CIniFile& ini, OptionsWindow& window, cViewFileDiffsOptions& v) {
    ini.Section("Compare");
    ReadCheckedOption(ini, window, "IgnoreCase", "False", v.IgnoreCase, "mnuOptionsIgnoreCase");
    ReadCheckedOption(ini, window, "IgnoreWhiteSpace", "False", v.IgnoreWhiteSpace,
                      "mnuOptionsIgnoreWhitespace");
    ReadCheckedOption(ini, window, "IgnoreTextFormatting", "False", v.IgnoreTextFormatting,
                      "mnuOptionsIgnoreTextFormatting");
    v.ForceTextCompare = ReadBoolean(ini, "ForceTextCompare", "False");
    ReadCheckedOption(ini, window, "ShowLineNumbers", "True", v.ShowLineNumbers,
                      "mnuOptionsShowLineNumbers");
    ReadChoiceOption<ComparisonMode>(ini, window, "ComparisonMode", "Visual", kComparisonModes,
                                     v.ComparisonMode, "mnuOptionsComparisonModeOption");
    ReadChoiceOption<OutputFormat>(ini, window, "OutputFormat", "SideBySide", kOutputFormats,
                                   v.OutputFormat, "mnuOptionsOutputFormatOption");
    ReadChoiceOption<ComparisonLevel>(ini, window, "ComparisonLevel", "Character",
                                      kComparisonLevels, v.ComparisonLevel,
                                      "mnuOptionsDiffDetailOption");
    ReadCheckedOption(ini, window, "ShowDialogueBeforeComparison", "True",
                      v.ShowDialogueBeforeComparison, "mnuOptionsShowDialogue");
    ReadCheckedOption(ini, window, "ShowInternetSourceReminder", "True",
                      v.ShowInternetSourceReminder, "mnuOptionsShowInternetSourceReminder");
}

void ReadGridsSection(CIniFile& ini, OptionsWindow& window, KeyGuard& guard) {
    ini.Section("Grids");
    const bool lines = ReadBoolean(ini, "ShowGridLines", "True");
    window.SetMenuChecked("mnuOptionsShowGridLines", -1, lines);
    for (const char* grid : kGrids)
        window.SetGridLines(grid, lines ? 1 : 0);
    const bool bold = ReadBoolean(ini, "FontBold", "False");
    for (const char* grid : kGrids)
        window.SetGridFontBold(grid, bold);
    const bool italic = ReadBoolean(ini, "FontItalic", "False");
    for (const char* grid : kGrids)
        window.SetGridFontItalic(grid, italic);
    guard([&] {
        const std::string name = ReadText(ini, "FontName", "Courier New");
        for (const char* grid : kGrids)
            window.SetGridFontName(grid, name);
    });
    guard([&] {
        const double size = LeadingNumber(ReadText(ini, "FontSize", "8"));
        for (const char* grid : kGrids)
            window.SetGridFontSize(grid, size);
    });
}

void ReadFormSection(CIniFile& ini, OptionsWindow& window) {
    ini.Section("Form");
    window.SetMenuChecked("mnuOptionsDisplayGridTooltips", -1,
                          ReadBoolean(ini, "PaneTooltips", "False"));
}

void ReadTextExtractionSection(CIniFile& ini, Session& session, KeyGuard& guard) {
    clsExtractionOptions& e = session.ExtractionOptions;
    ini.Section("Text Extraction");
    e.EnginePreference =
        ReadText(ini, "ExtractionEnginePrefs", kInternalFirst) == kInternalFirst ? 0 : 1;
    e.OriginalFormat = ReadBoolean(ini, "OriginalFormat", "True");
    e.SingleLineParagraph = ReadBoolean(ini, "SingleLineParagraph", "False");
    e.LimitLineLength = ReadBoolean(ini, "LimitLineLength", "False");
    const std::string maxChars = ReadText(ini, "MaxNumCharsPerLine", "79");
    guard([&] { e.MaxNumCharsPerLine = IsNumeric(maxChars) ? ToLongRounded(maxChars) : 79; });
    e.MSWordLimitLineLength = ReadBoolean(ini, "MSWordLimitLineLength", "False");
    // Kept as it always was: the test looks at the Word key, the number comes from the text of
    // MaxNumCharsPerLine, and fails (Type mismatch) when that text is not numeric.
    const std::string wordMaxChars = ReadText(ini, "MSWordMaxNumCharsPerLine", "79");
    guard([&] {
        e.MSWordMaxNumCharsPerLine = IsNumeric(wordMaxChars) ? ToLongRounded(maxChars) : 79;
    });
    const std::string saveAs = ReadText(ini, "MSWordSaveAsFormat", "2");
    guard([&] { e.MSWordSaveAsFormat = IsNumeric(saveAs) ? ToLongRounded(saveAs) : 2; });
    session.TextWithLayoutConverterPath =
        ReadText(ini, "TextWithLayoutConverterPath",
                 "C:\\Program Files\\Common Files\\Microsoft Shared\\TEXTCONV\\TXTLYT32.CNV");
}

void ReadMiscellaneousSection(CIniFile& ini, Session& session) {
    ini.Section("Miscellaneous");
    session.HTMLEditorFileSpec = ReadText(ini, "HTMLEditorFileSpec", "Notepad.exe");
}

void SaveCompareSection(CIniFile& ini, const cViewFileDiffsOptions& v) {
    ini.Section("Compare");
    WriteBoolean(ini, "IgnoreCase", v.IgnoreCase);
    WriteBoolean(ini, "IgnoreWhiteSpace", v.IgnoreWhiteSpace);
    WriteBoolean(ini, "IgnoreTextFormatting", v.IgnoreTextFormatting);
    WriteBoolean(ini, "ShowLineNumbers", v.ShowLineNumbers);
    WriteWord<ComparisonMode>(ini, "ComparisonMode", kComparisonModes, v.ComparisonMode);
    WriteWord<OutputFormat>(ini, "OutputFormat", kOutputFormats, v.OutputFormat);
    WriteWord<ComparisonLevel>(ini, "ComparisonLevel", kComparisonLevels, v.ComparisonLevel);
    WriteBoolean(ini, "ShowDialogueBeforeComparison", v.ShowDialogueBeforeComparison);
    WriteBoolean(ini, "ShowInternetSourceReminder", v.ShowInternetSourceReminder);
}

// Font sizes were held to four decimals; whole sizes are written without a point.
std::string FontSizeText(double points) {
    char buf[64];
    const auto [end, ec] =
        std::to_chars(buf, buf + sizeof buf, points, std::chars_format::fixed, 4);
    if (ec != std::errc()) throw RuntimeError(err::Overflow);
    std::string text(buf, end);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

void SaveGridsSection(CIniFile& ini, const OptionsWindow& window) {
    ini.Section("Grids");
    WriteBoolean(ini, "ShowGridLines", window.MenuChecked("mnuOptionsShowGridLines", -1));
    WriteBoolean(ini, "FontBold", window.GridFontBold(kGrdOriginalFile));
    WriteBoolean(ini, "FontItalic", window.GridFontItalic(kGrdOriginalFile));
    Write(ini, "FontName", window.GridFontName(kGrdOriginalFile));
    Write(ini, "FontSize", FontSizeText(window.GridFontSize(kGrdOriginalFile)));
}

void SaveTextExtractionSection(CIniFile& ini, const Session& session) {
    const clsExtractionOptions& e = session.ExtractionOptions;
    ini.Section("Text Extraction");
    Write(ini, "ExtractionEnginePrefs", e.EnginePreference == 0 ? kInternalFirst : kWordFirst);
    WriteBoolean(ini, "OriginalFormat", e.OriginalFormat);
    WriteBoolean(ini, "SingleLineParagraph", e.SingleLineParagraph);
    WriteBoolean(ini, "LimitLineLength", e.LimitLineLength);
    Write(ini, "MaxNumCharsPerLine", std::to_string(e.MaxNumCharsPerLine));
    WriteBoolean(ini, "MSWordLimitLineLength", e.MSWordLimitLineLength);
    Write(ini, "MSWordMaxNumCharsPerLine", std::to_string(e.MSWordMaxNumCharsPerLine));
    Write(ini, "MSWordSaveAsFormat", std::to_string(e.MSWordSaveAsFormat));
    Write(ini, "TextWithLayoutConverterPath", session.TextWithLayoutConverterPath);
}

} // namespace

void ReadProgramOptionsFromIniFile(Session& session, OptionsWindow& window) {
    try {
        // A save killed mid-write leaves its temporary file; it is never finished, so it goes.
        RemoveStaleTemporaries(SettingsFolder() + ProgramIniFileName());
        CIniFile ini;
        ini.Name(ProgramIniFileName());
        KeyGuard guard;
        ReadCompareSection(ini, window, session.ViewOptions);
        ReadGridsSection(ini, window, guard);
        ReadFormSection(ini, window);
        ReadTextExtractionSection(ini, session, guard);
        ReadMiscellaneousSection(ini, session);
    } catch (...) {
        ReportUnexpectedError("modIniFile.ReadProgramOptionsFromIniFile", "");
    }
}

void SaveProgramOptionsToIniFile(const Session& session, OptionsWindow& window) {
    try {
        // Every key in one rewrite: a kill leaves the old settings or the new, never a mix.
        profile::WriteBatch batch(SettingsFolder() + ProgramIniFileName());
        CIniFile ini;
        ini.Name(ProgramIniFileName());
        SaveCompareSection(ini, session.ViewOptions);
        SaveGridsSection(ini, window);
        SaveTextExtractionSection(ini, session);
        ini.Section("Miscellaneous");
        Write(ini, "HTMLEditorFileSpec", session.HTMLEditorFileSpec);
        ini.Section("Form");
        WriteBoolean(ini, "PaneTooltips", window.MenuChecked("mnuOptionsDisplayGridTooltips", -1));
    } catch (...) {
        ReportUnexpectedError("modIniFile.SaveProgramOptionsToIniFile", "");
    }
}

} // namespace orvane::modIniFile
