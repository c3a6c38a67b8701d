#include "intake/Formats.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "intake/detfile/DetectFileFormat.h"
#include "intake/detfile/detfile.h"

#include <cctype>

namespace orvane::modConvertFormats {
namespace {

constexpr const char* kLineEnd = "\r\n";

enum class Outcome { Known, UnknownNotText, Failed };

bool SameLetter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
}

bool MatchFrom(const std::string& t, std::size_t ti, const std::string& p, std::size_t pi) {
    for (; pi < p.size(); ++pi, ++ti) {
        if (p[pi] == '*') {
            for (std::size_t rest = ti; rest <= t.size(); ++rest)
                if (MatchFrom(t, rest, p, pi + 1)) return true;
            return false;
        }
        if (ti >= t.size() || (p[pi] != '?' && !SameLetter(p[pi], t[ti]))) return false;
    }
    return ti == t.size();
}

bool IsHtmlByName(const std::string& path) {
    return MatchesPattern(GetFileNameFromPath(path), "htm*.tmp") ||
           MatchesPattern(GetFileExtension(path), "HTM*");
}

// The name rules, the recogniser, and the text test for what it does not know.
Outcome FindFormat(const std::string& path, std::string& format, std::string& description,
                   std::string& reason) {
    if (IsHtmlByName(path)) {
        format = "HTML";
        description = "HTML Document";
        return Outcome::Known;
    }
    short known = -1;
    if (modDetFile::DetectFileFormat(path, format, description, known, reason))
        return Outcome::Known;
    if (format != "!UNK") return Outcome::Failed;
    if (modDetFile::GetFileTextScore(path, 1) < DETFILE_TEXT_SCORE_THRESHOLD)
        return Outcome::UnknownNotText;
    format = "ASC";
    return Outcome::Known;
}

} // namespace

bool MatchesPattern(const std::string& Text, const std::string& Pattern) {
    return MatchFrom(Text, 0, Pattern, 0);
}

bool GetFormatOfFile(const std::string& Path, std::string& Format, std::string& Description,
                     std::string& FailureReason) {
    try {
        std::string reason;
        const Outcome outcome = FindFormat(Path, Format, Description, reason);
        if (outcome == Outcome::Known) return true;
        // The two texts differ by one word, and always have.
        FailureReason = outcome == Outcome::UnknownNotText
                            ? "Unable to determine the format of the file."
                            : "Unable to determine the format of file.";
        FailureReason += kLineEnd + std::string("Reason: ") + reason;
        return false;
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.GetFormatOfFile");
        return false;
    }
}

bool GetFormatOfBothFiles(const std::string& OriginalPath, const std::string& RevisedPath,
                          std::string& OriginalFormat, std::string& OriginalDescription,
                          std::string& RevisedFormat, std::string& RevisedDescription,
                          std::string& FailureReason) {
    try {
        std::string reason;
        if (FindFormat(OriginalPath, OriginalFormat, OriginalDescription, reason) !=
            Outcome::Known) {
            FailureReason = "Unable to determine the format of original file." +
                            std::string(kLineEnd) + "Reason: " + reason;
            return false;
        }
        if (FindFormat(RevisedPath, RevisedFormat, RevisedDescription, reason) != Outcome::Known) {
            FailureReason = "Unable to determine the format of revised file." +
                            std::string(kLineEnd) + "Reason: " + reason;
            return false;
        }
        return true;
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.GetFormatOfBothFiles");
        return false;
    }
}

std::int32_t GetConversionMethodForFormat(const std::string& Path, const std::string& Format) {
    (void)Path;
    try {
        if (MatchesPattern(Format, "HTM*")) return kHtmlConversion;
        if (MatchesPattern(Format, "ASC")) return kNoConversion;
        return kNoTextFromFormat;
    } catch (...) {
        ReportUnexpectedError("modConvertFormats.GetConversionMethodForFormat");
        return 0; // what the function holds before it has decided
    }
}

} // namespace orvane::modConvertFormats
