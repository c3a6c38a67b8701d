#pragma once

#include "intake/html/EncodingSniffer.h"

#include <string>
#include <string_view>

namespace html {

// Decodes bytes in an Encoding Standard encoding (a name GetEncoding gives). Never fails:
// bytes the encoding cannot map become U+FFFD. UTF-8, x-user-defined and "replacement" are
// decoded here, the legacy encodings by glibc's iconv. Should the C library lack a converter,
// the bytes come out as their Latin-1 characters rather than not at all.
std::u32string DecodeBytes(std::string_view bytes, std::string_view encoding);

// Whether DecodeBytes has a real decoder for the encoding, rather than the Latin-1 stand-in.
bool HasDecoder(std::string_view encoding);

struct DecodedDocument {
    std::u32string text; // without the byte order mark
    EncodingGuess guess;
};

// A page's bytes as characters: SniffEncoding, then DecodeBytes.
DecodedDocument DecodeDocument(std::string_view bytes);

} // namespace html
