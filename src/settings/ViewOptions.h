#pragma once
// Options and state of the current comparison, shared between the driver and the views.
#include <string>

namespace orvane {

// The numbers are those of the settings file and of the menu and option-button arrays.
enum class SourceType { LocalFile = 0, WebAddress = 1 };
enum class ComparisonMode { Visual = 0, Code = 1, Text = 2 };
enum class OutputFormat { OneWindow = 0, SideBySide = 1 };
enum class ComparisonLevel { Character = 0, Word = 1, Line = 2 };

// Item i of a menu or option-button array stands for the value numbered i.
template <class Choice> constexpr int ChoiceIndex(Choice value) {
    return static_cast<int>(value);
}
template <class Choice> constexpr Choice ChoiceAt(int index) {
    return static_cast<Choice>(index);
}

struct cViewFileDiffsOptions {
    std::string OriginalFile;
    std::string RevisedFile;
    // Qualified: each field shares its name with its type.
    orvane::SourceType OriginalSourceType = orvane::SourceType::LocalFile;
    orvane::SourceType RevisedSourceType = orvane::SourceType::LocalFile;
    bool IgnoreWhiteSpace = false;
    bool IgnoreCase = false;
    bool IgnoreTextFormatting = false;
    bool ForceTextCompare = false;
    orvane::ComparisonMode ComparisonMode = orvane::ComparisonMode::Visual;
    orvane::OutputFormat OutputFormat = orvane::OutputFormat::OneWindow;
    bool OriginalTextExtracted = false;
    bool RevisedTextExtracted = false;
    std::string OriginalTextFile;
    std::string RevisedTextFile;
    std::string OriginalDownloadFile;
    std::string RevisedDownloadFile;
    bool ShowLineNumbers = true;
    bool ShowDialogueBeforeComparison = true;
    bool ShowInternetSourceReminder = true;
    orvane::ComparisonLevel ComparisonLevel = orvane::ComparisonLevel::Character;
    bool RunFromCommandLine = false;
    std::string CommandLineMessage;
};

// The two inputs are handled by one routine each, given the side.
enum class Side { Original, Revised };

struct SideFields {
    std::string& File;
    orvane::SourceType& SourceType;
    bool& TextExtracted;
    std::string& TextFile;
    std::string& DownloadFile;
};

inline SideFields FieldsOf(cViewFileDiffsOptions& o, Side side) {
    if (side == Side::Original)
        return {o.OriginalFile, o.OriginalSourceType, o.OriginalTextExtracted, o.OriginalTextFile,
                o.OriginalDownloadFile};
    return {o.RevisedFile, o.RevisedSourceType, o.RevisedTextExtracted, o.RevisedTextFile,
            o.RevisedDownloadFile};
}

// The file a side is compared and shown from: its extracted text, else its downloaded copy,
// else the input itself.
inline std::string ComparedFile(const cViewFileDiffsOptions& o, Side side) {
    const SideFields f = FieldsOf(const_cast<cViewFileDiffsOptions&>(o), side);
    if (f.TextExtracted) return f.TextFile;
    if (f.SourceType != SourceType::LocalFile) return f.DownloadFile;
    return f.File;
}

} // namespace orvane
