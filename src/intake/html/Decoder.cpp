#include "intake/html/Decoder.h"

#include "intake/html/Utf8.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <iconv.h>

namespace html {
namespace {

constexpr const char* kUtf32Native =
    std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

struct IconvName {
    std::string_view encoding;
    const char* iconv;
};

// Where glibc's name differs from the upper-cased standard name, or its converter of that
// name is narrower than the standard's decoder (gbk decodes as gb18030, big5 takes HKSCS,
// euc-kr is Windows-949, shift_jis is Windows-31J).
constexpr IconvName kIconvNames[] = {
    {"big5", "BIG5-HKSCS"},       {"euc-kr", "CP949"},
    {"gbk", "GB18030"},           {"iso-8859-8-i", "ISO-8859-8"},
    {"shift_jis", "WINDOWS-31J"}, {"x-mac-cyrillic", "MAC-CYRILLIC"},
};

std::string IconvNameFor(std::string_view encoding) {
    for (const IconvName& n : kIconvNames)
        if (n.encoding == encoding) return n.iconv;
    std::string name(encoding);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return name;
}

// glibc leaves five Windows-1252 bytes unmapped; the standard maps them to the C1 controls.
char32_t Replacement(std::string_view encoding, unsigned char byte) {
    const bool hole = byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
    return encoding == "windows-1252" && hole ? byte : U'\uFFFD';
}

void AppendChunk(std::u32string& out, const char32_t* chunk, const char* end) {
    out.append(chunk, static_cast<std::size_t>(end - reinterpret_cast<const char*>(chunk)) / 4);
}

// Skips one code unit (two bytes in UTF-16) at each byte glibc refuses, so one bad byte
// never costs the rest of the file.
bool DecodeWithIconv(std::string_view bytes, std::string_view encoding, std::u32string& out) {
    iconv_t cd = iconv_open(kUtf32Native, IconvNameFor(encoding).c_str());
    if (cd == reinterpret_cast<iconv_t>(-1)) return false;
    const std::size_t unit = encoding.starts_with("utf-16") ? 2 : 1;
    char* in = const_cast<char*>(bytes.data()); // iconv's signature; it only reads
    std::size_t inLeft = bytes.size();
    char32_t chunk[4096];
    for (;;) {
        char* outPtr = reinterpret_cast<char*>(chunk);
        std::size_t outLeft = sizeof chunk;
        const std::size_t r = iconv(cd, &in, &inLeft, &outPtr, &outLeft);
        AppendChunk(out, chunk, outPtr);
        if (r != static_cast<std::size_t>(-1)) break;
        if (errno == E2BIG) continue;
        out.push_back(Replacement(encoding, static_cast<unsigned char>(*in)));
        const std::size_t skip = std::min(unit, inLeft);
        in += skip;
        inLeft -= skip;
    }
    char* outPtr = reinterpret_cast<char*>(chunk);
    std::size_t outLeft = sizeof chunk;
    iconv(cd, nullptr, nullptr, &outPtr, &outLeft); // a stateful encoding may end in a shift
    AppendChunk(out, chunk, outPtr);
    iconv_close(cd);
    return true;
}

std::u32string DecodeBytewise(std::string_view bytes, char32_t highBase) {
    std::u32string out;
    out.reserve(bytes.size());
    for (char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        out.push_back(b < 0x80 ? b : highBase + (b - 0x80));
    }
    return out;
}

} // namespace

std::u32string DecodeBytes(std::string_view bytes, std::string_view encoding) {
    if (encoding == "utf-8") return DecodeUtf8(bytes);
    if (encoding == "x-user-defined") return DecodeBytewise(bytes, 0xF780);
    // ISO-2022-KR and its kin: the whole input is one U+FFFD, as in browsers.
    if (encoding == "replacement") return bytes.empty() ? U"" : U"\uFFFD";
    std::u32string out;
    out.reserve(bytes.size());
    if (DecodeWithIconv(bytes, encoding, out)) return out;
    return DecodeBytewise(bytes, 0x80);
}

bool HasDecoder(std::string_view encoding) {
    if (encoding == "utf-8" || encoding == "x-user-defined" || encoding == "replacement")
        return true;
    iconv_t cd = iconv_open(kUtf32Native, IconvNameFor(encoding).c_str());
    if (cd == reinterpret_cast<iconv_t>(-1)) return false;
    iconv_close(cd);
    return true;
}

DecodedDocument DecodeDocument(std::string_view bytes) {
    const EncodingGuess guess = SniffEncoding(bytes);
    return {DecodeBytes(bytes.substr(guess.bomLength), guess.encoding), guess};
}

} // namespace html
