#include "intake/detfile/TextScore.h"

#include <algorithm>

namespace orvane::detfile {
namespace {

static_assert(kHeadBytes == kScoreBlockBytes, "the head doubles as the first score block");

constexpr int kBlocksOfALargeFile = static_cast<int>(kWholeFileReadLimit / kScoreBlockBytes);

bool IsTextCodePoint(std::uint32_t cp) {
    if (cp >= 0x09 && cp <= 0x0D) return true; // tab, line ends, vertical tab, form feed
    if (cp < 0x20 || cp == 0x7F) return false;
    if (cp >= 0x80 && cp <= 0x9F) return false; // C1 controls
    return cp != 0xFFFE && cp != 0xFFFF;
}

// Windows-1252 leaves these five bytes unassigned; every other byte above 0x7F is a character.
bool IsAnsiText(unsigned char c) {
    if (c < 0x80) return IsTextCodePoint(c);
    return c != 0x81 && c != 0x8D && c != 0x8F && c != 0x90 && c != 0x9D;
}

bool IsContinuation(unsigned char c) {
    return (c & 0xC0) == 0x80;
}

constexpr int kIncomplete = -1;

// What a UTF-8 lead byte promises: the sequence's length, its bits, and the range of the second
// byte, which some leads narrow to rule out overlongs, surrogates and values above U+10FFFF.
struct Lead {
    int length = 0;
    std::uint32_t bits = 0;
    unsigned char lo = 0x80, hi = 0xBF;
};

Lead LeadOf(unsigned char c) {
    if (c >= 0xC2 && c <= 0xDF) return {2, c & 0x1Fu};
    if (c == 0xE0) return {3, 0, 0xA0};
    if (c == 0xED) return {3, 0xD, 0x80, 0x9F};
    if (c >= 0xE1 && c <= 0xEF) return {3, c & 0x0Fu};
    if (c == 0xF0) return {4, 0, 0x90};
    if (c >= 0xF1 && c <= 0xF3) return {4, c & 0x07u};
    if (c == 0xF4) return {4, 4, 0x80, 0x8F};
    return {};
}

// Length of the well-formed UTF-8 sequence at `at`, 0 when it is not one, kIncomplete when the
// bytes end before it does.
int SequenceLength(std::string_view b, std::size_t at, std::uint32_t& cp) {
    const Lead lead = LeadOf(static_cast<unsigned char>(b[at]));
    cp = lead.bits;
    for (int k = 1; k < lead.length; ++k) {
        if (at + k >= b.size()) return kIncomplete;
        const unsigned char c = static_cast<unsigned char>(b[at + k]);
        if (k == 1 ? (c < lead.lo || c > lead.hi) : !IsContinuation(c)) return 0;
        cp = (cp << 6) | (c & 0x3F);
    }
    return lead.length;
}

void TallyBytes(std::string_view b, bool cutStart, bool cutEnd, TextTally& t) {
    std::size_t i = 0;
    if (cutStart)
        while (i < 3 && i < b.size() && IsContinuation(static_cast<unsigned char>(b[i])))
            ++i;
    while (i < b.size()) {
        const unsigned char c = static_cast<unsigned char>(b[i]);
        if (c < 0x80) {
            const bool text = IsTextCodePoint(c);
            t.total += 1;
            t.utf8Text += text;
            t.ansiText += text;
            ++i;
            continue;
        }
        t.nonAscii = true;
        std::uint32_t cp = 0;
        const int len = SequenceLength(b, i, cp);
        if (len == kIncomplete && cutEnd) break;
        if (len <= 0) {
            t.utf8Valid = false;
            t.total += 1;
            t.ansiText += IsAnsiText(c);
            ++i;
            continue;
        }
        t.total += len;
        if (IsTextCodePoint(cp)) t.utf8Text += len;
        for (int k = 0; k < len; ++k)
            t.ansiText += IsAnsiText(static_cast<unsigned char>(b[i + k]));
        i += len;
    }
}

std::uint32_t UnitAt(std::string_view b, std::size_t at, bool bigEndian) {
    const auto hi = static_cast<unsigned char>(b[bigEndian ? at : at + 1]);
    const auto lo = static_cast<unsigned char>(b[bigEndian ? at + 1 : at]);
    return (static_cast<std::uint32_t>(hi) << 8) | lo;
}

bool IsHighSurrogate(std::uint32_t u) {
    return u >= 0xD800 && u <= 0xDBFF;
}
bool IsLowSurrogate(std::uint32_t u) {
    return u >= 0xDC00 && u <= 0xDFFF;
}

void TallyUtf16(std::string_view b, bool bigEndian, bool cutStart, bool cutEnd, TextTally& t) {
    t.nonAscii = true;
    std::size_t end = b.size() & ~std::size_t{1};
    if (end < b.size() && !cutEnd) ++t.total; // a lone last byte is no character
    std::size_t i = 0;
    if (cutStart && end >= 2 && IsLowSurrogate(UnitAt(b, 0, bigEndian))) i = 2;
    while (i < end) {
        const std::uint32_t u = UnitAt(b, i, bigEndian);
        std::size_t len = 2;
        bool text = IsTextCodePoint(u) && !IsLowSurrogate(u);
        if (IsHighSurrogate(u)) {
            if (i + 2 >= end && cutEnd) break;
            text = i + 2 < end && IsLowSurrogate(UnitAt(b, i + 2, bigEndian));
            if (text) len = 4;
        }
        t.total += len;
        if (text) {
            t.utf8Text += len;
            t.ansiText += len;
        }
        i += len;
    }
}

// Where the blocks of a large file begin: the head, the tail and evenly between. Even offsets
// keep UTF-16 units whole.
std::uint64_t BlockOffset(std::uint64_t size, int block, int blocks) {
    const std::uint64_t span = size - kScoreBlockBytes;
    return (span * static_cast<std::uint64_t>(block) / static_cast<std::uint64_t>(blocks - 1)) &
           ~std::uint64_t{1};
}

void TallyFileBlock(const FileSample& file, std::uint64_t offset, TextTally& t) {
    const std::string block =
        offset == 0 ? std::string(file.Head()) : file.ReadAt(offset, kScoreBlockBytes);
    TallyBlock(block, offset > 0, offset + block.size() < file.Size(), t);
}

} // namespace

void TallyBlock(std::string_view bytes, bool cutStart, bool cutEnd, TextTally& tally) {
    if (tally.units == TextTally::Units::Bytes)
        TallyBytes(bytes, cutStart, cutEnd, tally);
    else
        TallyUtf16(bytes, tally.units == TextTally::Units::Utf16BE, cutStart, cutEnd, tally);
}

int ScoreOf(const TextTally& t) {
    if (t.total == 0) return 0;
    return static_cast<int>(std::max(t.utf8Text, t.ansiText) * 100 / t.total);
}

TextEncoding EncodingOf(const TextTally& t) {
    if (t.units != TextTally::Units::Bytes) return TextEncoding::Utf16;
    if (!t.nonAscii) return TextEncoding::Ascii;
    return t.utf8Valid ? TextEncoding::Utf8 : TextEncoding::Ansi;
}

TextTally::Units UnitsOf(std::string_view head) {
    if (head.starts_with("\xFF\xFE")) return TextTally::Units::Utf16LE;
    if (head.starts_with("\xFE\xFF")) return TextTally::Units::Utf16BE;
    return TextTally::Units::Bytes;
}

TextScore ScoreFile(const FileSample& file, bool wholeFile) {
    TextTally t;
    t.units = UnitsOf(file.Head());
    if (!wholeFile || !file.HeadIsPartial()) {
        TallyBlock(file.Head(), false, file.HeadIsPartial(), t);
    } else if (file.Size() <= kWholeFileReadLimit) {
        for (std::uint64_t at = 0; at < file.Size(); at += kScoreBlockBytes)
            TallyFileBlock(file, at, t);
    } else {
        for (int k = 0; k < kBlocksOfALargeFile; ++k)
            TallyFileBlock(file, BlockOffset(file.Size(), k, kBlocksOfALargeFile), t);
    }
    return {ScoreOf(t), EncodingOf(t)};
}

} // namespace orvane::detfile
