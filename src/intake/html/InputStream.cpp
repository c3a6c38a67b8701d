#include "intake/html/InputStream.h"

#include <algorithm>

namespace html {
namespace {

bool IsSurrogate(char32_t c) {
    return c >= 0xD800 && c <= 0xDFFF;
}

bool IsNoncharacter(char32_t c) {
    return (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE;
}

// NUL is left to the tokenizer, which reports it where it matters.
bool IsFlaggedControl(char32_t c) {
    const bool control = c <= 0x1F || (c >= 0x7F && c <= 0x9F);
    const bool allowed = c == 0 || c == '\t' || c == '\n' || c == '\f' || c == ' ';
    return control && !allowed;
}

} // namespace

InputStream::InputStream(std::u32string_view raw) {
    text_.reserve(raw.size());
    lineStarts_.push_back(0);
    for (std::size_t i = 0; i < raw.size(); ++i) {
        if (raw[i] == '\r') {
            if (i + 1 < raw.size() && raw[i + 1] == '\n') ++i;
            Append('\n');
        } else {
            Append(raw[i] > 0x10FFFF ? U'\uFFFD' : raw[i]);
        }
    }
}

void InputStream::Append(char32_t c) {
    const std::size_t offset = text_.size();
    if (IsSurrogate(c))
        errors_.push_back({ParseErrorCode::SurrogateInInputStream, offset});
    else if (IsNoncharacter(c))
        errors_.push_back({ParseErrorCode::NoncharacterInInputStream, offset});
    else if (IsFlaggedControl(c))
        errors_.push_back({ParseErrorCode::ControlCharacterInInputStream, offset});
    text_.push_back(c);
    if (c == '\n') lineStarts_.push_back(offset + 1);
}

Location InputStream::LocationOf(std::size_t offset) const {
    const auto after = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    const auto line = static_cast<std::size_t>(after - lineStarts_.begin());
    return {line, offset - lineStarts_[line - 1] + 1};
}

} // namespace html
