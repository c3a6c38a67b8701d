#include "intake/detfile/Recognise.h"

#include "intake/detfile/MarkupFormats.h"
#include "intake/detfile/Signatures.h"
#include "intake/detfile/TextScore.h"

namespace orvane::detfile {
namespace {

FormatName TextFormat(TextEncoding encoding) {
    switch (encoding) {
    case TextEncoding::Ascii:
        return names::AsciiText;
    case TextEncoding::Utf8:
        return names::Utf8Text;
    case TextEncoding::Utf16:
        return names::Utf16Text;
    case TextEncoding::Ansi:
        return names::AnsiText;
    }
    return names::AnsiText;
}

FormatName Classify(const FileSample& file) {
    if (file.Head().empty()) return names::Empty;
    if (const auto bySignature = MatchSignature(file)) return *bySignature;
    if (const auto byMarkup = ClassifyMarkup(file.Head())) return *byMarkup;
    const TextScore text = ScoreFile(file, false);
    if (text.score >= DETFILE_TEXT_SCORE_THRESHOLD) return TextFormat(text.encoding);
    return names::Unknown;
}

} // namespace

Recognition RecogniseFile(const std::string& path) {
    FileSample file;
    if (!file.Open(path)) return {names::OpenError, file.BytesRead()};
    const FormatName format = Classify(file);
    return {format, file.BytesRead()};
}

int FileTextScore(const std::string& path, bool wholeFile) {
    FileSample file;
    if (!file.Open(path)) return -1;
    return ScoreFile(file, wholeFile).score;
}

} // namespace orvane::detfile
