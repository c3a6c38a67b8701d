#pragma once
// Options and state of the current comparison, shared between the driver and the views.
#include <string>

namespace orvane {

enum SourceType : int { LocalFile = 0, WebAddress = 1 };
enum ComparisonModeValue : int { ModeVisual = 0, ModeCode = 1, ModeText = 2 };
enum OutputFormatValue : int { OutputOneWindow = 0, OutputSideBySide = 1 };
enum ComparisonLevelValue : int { LevelCharacter = 0, LevelWord = 1, LevelLine = 2 };

struct cViewFileDiffsOptions {
    std::string OriginalFile;
    std::string RevisedFile;
    int OriginalSourceType = LocalFile;
    int RevisedSourceType = LocalFile;
    bool IgnoreWhiteSpace = false;
    bool IgnoreCase = false;
    bool IgnoreTextFormatting = false;
    bool ForceTextCompare = false;
    int ComparisonMode = ModeVisual;
    int OutputFormat = OutputOneWindow;
    bool OriginalTextExtracted = false;
    bool RevisedTextExtracted = false;
    std::string OriginalTextFile;
    std::string RevisedTextFile;
    std::string OriginalDownloadFile;
    std::string RevisedDownloadFile;
    bool ShowLineNumbers = true;
    bool ShowDialogueBeforeComparison = true;
    bool ShowInternetSourceReminder = true;
    int ComparisonLevel = LevelCharacter;
    bool RunFromCommandLine = false;
    std::string CommandLineMessage;
};

// The two inputs are handled by one routine each, given the side.
enum class Side { Original, Revised };

struct SideFields {
    std::string& File;
    int& SourceType;
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
    if (f.SourceType != LocalFile) return f.DownloadFile;
    return f.File;
}

} // namespace orvane
