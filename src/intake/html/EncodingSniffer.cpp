#include "intake/html/EncodingSniffer.h"

#include "intake/html/EncodingPrescan.h"
#include "intake/html/Utf8.h"

#include <algorithm>

namespace html {
namespace {

bool HasNonAscii(std::string_view bytes) {
    return std::any_of(bytes.begin(), bytes.end(),
                       [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

} // namespace

EncodingGuess SniffEncoding(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) return {"utf-8", EncodingSource::ByteOrderMark, 3};
    if (bytes.starts_with("\xFE\xFF")) return {"utf-16be", EncodingSource::ByteOrderMark, 2};
    if (bytes.starts_with("\xFF\xFE")) return {"utf-16le", EncodingSource::ByteOrderMark, 2};
    const std::string_view named = PrescanForEncoding(bytes);
    if (!named.empty()) return {named, EncodingSource::MetaPrescan, 0};
    if (HasNonAscii(bytes) && IsValidUtf8(bytes)) return {"utf-8", EncodingSource::Utf8Content, 0};
    return {"windows-1252", EncodingSource::Default, 0};
}

} // namespace html
