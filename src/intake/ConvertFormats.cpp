#include "intake/ConvertFormats.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/Detagger.h"
#include "intake/Formats.h"
#include "intake/OfficeConverter.h"
#include "settings/ExtractionOptions.h"
#include "settings/ViewOptions.h"

#include <filesystem>

namespace orvane::modConvertFormats {
namespace {

constexpr int kMethodHtml = 1;
constexpr int kMethodNone = 0;

std::string MakeTextFileSpec() {
    std::string extension = "wtd";
    return GetTempFileSpec("tmp", extension, "");
}

bool CopyFile(const std::string& from, const std::string& to) {
    std::error_code ec;
    return std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing,
                                      ec);
}

// One turn of the word processor. The counter counts only a conversion that was tried: a
// suite that cannot start throws from Initialize and ends the whole run in the caller's trap.
bool RunWordProcessor(const std::string& path, const std::string& textFile,
                      const clsExtractionOptions& options, int& attempts) {
    clsMSWordConverter converter(options);
    if (!converter.Initialize(false)) return false;
    const bool ok = converter.ConvertFileToText(path, textFile, options.MSWordSaveAsFormat, false);
    DoEvents();
    ++attempts;
    return ok;
}

bool ConvertFileWith(const std::string& Path, int Method, std::string& TextFile,
                     std::string& FailureReason, ComparisonMode mode,
                     const clsExtractionOptions& options) {
    try {
        if (Method == kMethodNone) return true;
        if (Method != kMethodHtml) return false;
        if (TextFile.empty()) TextFile = MakeTextFileSpec();
        switch (mode) {
        case ComparisonMode::Code:
            if (CopyFile(Path, TextFile)) return true;
            FailureReason = "Copy of HTML file to temp file failed. :" + TextFile;
            return false;
        case ComparisonMode::Text: {
            std::string message;
            if (ConvertHTMLToText(Path, TextFile, message, options)) return true;
            FailureReason = !message.empty() ? message
                                             : "The internal HTML converter failed.  Try using "
                                               "an alternate converter.";
            return false;
        }
        case ComparisonMode::Visual:
            return true;
        default:
            return false;
        }
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.ConvertFile");
        return false;
    }
}

} // namespace

bool ConvertFile(const std::string& Path, int Method, const std::string& Format,
                 std::string& TextFile, std::string& FailureReason, ComparisonMode Mode,
                 const clsExtractionOptions& Options) {
    (void)Format;
    return ConvertFileWith(Path, Method, TextFile, FailureReason, Mode, Options);
}

bool ConvertFileIfNeeded(const std::string& Path, const std::string& Format, std::string& TextFile,
                         std::string& FailureReason, ComparisonMode Mode,
                         const clsExtractionOptions& Options) {
    try {
        int attempts = 0;
        const int method = GetConversionMethodForFormat(Path, Format);
        // Refused before any engine runs, although the word processor could read more formats.
        if (method == -1) {
            FailureReason = "Only HTML and ASCII text files may be compared.";
            return false;
        }
        TextFile = MakeTextFileSpec();
        bool internal = Options.EnginePreference == 0;
        std::string message; // the internal engine's words; the word processor's stay unread
        for (int turn = 1;; ++turn) {
            const bool ok = internal
                                ? ConvertFileWith(Path, method, TextFile, message, Mode, Options)
                                : RunWordProcessor(Path, TextFile, Options, attempts);
            if (internal) ++attempts;
            if (ok) return true;
            if (attempts == 2) {
                FailureReason = "Unable to extract the text data from file.\r\n\r\n" + message;
                return false;
            }
            // Each engine runs at most once; a second turn that counted nothing ends here.
            if (turn == 2) return false;
            internal = Options.EnginePreference != 0;
        }
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.ConvertFileIfNeeded");
        return false;
    }
}

} // namespace orvane::modConvertFormats
