#include "intake/ConvertFormats.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/Detagger.h"
#include "intake/Formats.h"
#include "intake/OfficeConverter.h"
#include "settings/ExtractionOptions.h"
#include "settings/Session.h"
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

bool RunOfficeSuite(const std::string& path, const std::string& textFile, int& attempts) {
    clsMSWordConverter converter;
    if (!converter.Initialize(false)) return false;
    const bool ok =
        converter.ConvertFileToText(path, textFile, gExtractionOptions->MSWordSaveAsFormat, false);
    DoEvents();
    ++attempts;
    return ok;
}

} // namespace

bool ConvertFile(const std::string& Path, int Method, const std::string& Format,
                 std::string& TextFile, std::string& FailureReason) {
    (void)Format;
    try {
        if (Method == kMethodNone) return true;
        if (Method != kMethodHtml) return false;
        if (TextFile.empty()) TextFile = MakeTextFileSpec();
        switch (gViewOptions->ComparisonMode) {
        case ModeCode:
            if (CopyFile(Path, TextFile)) return true;
            FailureReason = "Copy of HTML file to temp file failed. :" + TextFile;
            return false;
        case ModeText: {
            std::string message;
            if (ConvertHTMLToText(Path, TextFile, message, *gExtractionOptions)) return true;
            FailureReason = !message.empty() ? message
                                             : "The internal HTML converter failed.  Try using "
                                               "an alternate converter.";
            return false;
        }
        case ModeVisual:
            return true;
        default:
            return false;
        }
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.ConvertFile");
        return false;
    }
}

bool ConvertFileIfNeeded(const std::string& Path, const std::string& Format, std::string& TextFile,
                         std::string& FailureReason) {
    try {
        int attempts = 0;
        const int method = GetConversionMethodForFormat(Path, Format);
        if (method == -1) {
            FailureReason = "Only HTML and ASCII text files may be compared.";
            return false;
        }
        TextFile = MakeTextFileSpec();
        bool internal = gExtractionOptions->EnginePreference == 0;
        std::string message;
        for (int turn = 0;; ++turn) { // each engine runs at most once
            bool ok;
            if (internal) {
                ok = ConvertFile(Path, method, Format, TextFile, message);
                ++attempts;
            } else {
                ok = RunOfficeSuite(Path, TextFile, attempts);
            }
            if (ok) return true;
            if (attempts >= 2 || turn >= 1) {
                FailureReason = "Unable to extract the text data from file.\r\n\r\n" + message;
                return false;
            }
            internal = gExtractionOptions->EnginePreference != 0;
        }
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.ConvertFileIfNeeded");
        return false;
    }
}

} // namespace orvane::modConvertFormats
