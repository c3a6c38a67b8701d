#pragma once
// The text score: the share of a file's bytes that belong to readable text. Printable ASCII and
// the usual white space count; so do characters beyond ASCII, read as UTF-8 or as Windows-1252,
// whichever reading finds more text; after a UTF-16 byte order mark, code units count instead.
#include "intake/detfile/FileSample.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orvane::detfile {

enum class TextEncoding { Ascii, Utf8, Ansi, Utf16 };

struct TextTally {
    std::uint64_t total = 0;
    std::uint64_t utf8Text = 0; // text bytes when the bytes are read as UTF-8
    std::uint64_t ansiText = 0; // text bytes when they are read as Windows-1252
    bool nonAscii = false;
    bool utf8Valid = true;
    enum class Units { Bytes, Utf16LE, Utf16BE } units = Units::Bytes; // set from the whole file
};

// A block of a larger file may begin or end inside a character: `cutStart` and `cutEnd` leave
// such pieces out instead of counting them as broken text.
void TallyBlock(std::string_view bytes, bool cutStart, bool cutEnd, TextTally& tally);

// 0 to 100, rounded down, so that 97.9 stays below the threshold of 98.
int ScoreOf(const TextTally& tally);
TextEncoding EncodingOf(const TextTally& tally);

// UTF-16 by the byte order mark at the file's start, else bytes.
TextTally::Units UnitsOf(std::string_view head);

struct TextScore {
    int score = 0;
    TextEncoding encoding = TextEncoding::Ascii;
};

// The head alone, or the whole file: all of it up to kWholeFileReadLimit, beyond that evenly
// spread blocks that add up to the same amount.
TextScore ScoreFile(const FileSample& file, bool wholeFile);

inline constexpr std::size_t kScoreBlockBytes = 64 * 1024;
// Enough to judge a file by, small enough to read in a blink; 64 blocks of the size above.
inline constexpr std::uint64_t kWholeFileReadLimit = 64 * kScoreBlockBytes;

} // namespace orvane::detfile
