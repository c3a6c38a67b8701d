#include "intake/detfile/Signatures.h"

#include "intake/detfile/ByteOrder.h"
#include "intake/detfile/CompoundFormats.h"
#include "intake/detfile/ZipFormats.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace orvane::detfile {
namespace {

using namespace std::string_view_literals;

struct Magic {
    std::size_t offset = 0;
    std::string_view bytes; // empty: nothing more to match
};

// Narrows a family down to its member, or rejects a short magic that text could begin with.
using Refine = std::optional<FormatName> (*)(const FileSample&, FormatName);

struct Signature {
    Magic first;
    Magic second;
    FormatName name;
    Refine refine = nullptr;
};

// "MZ" begins many a word; only a PE header where the DOS header points makes a program.
std::optional<FormatName> RefinePe(const FileSample& file, FormatName) {
    constexpr std::uint32_t kPeCharacteristics = 22, kDllFlag = 0x2000;
    const std::uint32_t at = ReadLE(file.Head(), 0x3C, 4);
    if (at < 0x40) return std::nullopt;
    const std::string pe = file.Slice(at, 24);
    if (!HasAt(pe, 0, "PE\0\0"sv)) return std::nullopt;
    return (ReadLE(pe, kPeCharacteristics, 2) & kDllFlag) ? names::Dll : names::Exe;
}

// "BM" too: the reserved words must be zero and the info header one of the known sizes.
std::optional<FormatName> RefineBitmap(const FileSample& file, FormatName name) {
    constexpr std::uint32_t kInfoHeaderSizes[] = {12, 40, 52, 56, 64, 108, 124};
    const std::string_view h = file.Head();
    if (h.size() < 26 || ReadLE(h, 6, 4) != 0) return std::nullopt;
    if (std::ranges::count(kInfoHeaderSizes, ReadLE(h, 14, 4)) == 0) return std::nullopt;
    return name;
}

std::optional<FormatName> RefineIcon(const FileSample& file, FormatName name) {
    const std::string_view h = file.Head();
    const std::uint32_t images = ReadLE(h, 4, 2);
    if (images == 0 || h.size() < 22 || h[9] != '\0') return std::nullopt;
    return name;
}

// ID3 tags of versions 2.2 to 2.4, revision 0.
std::optional<FormatName> RefineId3(const FileSample& file, FormatName name) {
    const std::string_view h = file.Head();
    if (h.size() < 10 || h[3] < 2 || h[3] > 4 || h[4] != '\0') return std::nullopt;
    return name;
}

std::optional<FormatName> RefineZip(const FileSample& file, FormatName) {
    return ClassifyZip(file);
}

std::optional<FormatName> RefineCompound(const FileSample& file, FormatName) {
    return ClassifyCompound(file);
}

// Order matters only where one magic begins another: the specific entry comes first.
constexpr Signature kSignatures[] = {
    {{0, "%PDF-"}, {}, names::Pdf},
    {{0, "%!PS"}, {}, names::PostScript},
    {{0, "{\\rtf"}, {}, names::Rtf},
    {{0, "PK\x03\x04"}, {}, names::Zip, RefineZip},
    {{0, "PK\x05\x06"}, {}, names::Zip}, // an archive with nothing in it
    {{0, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"}, {}, names::Ole2, RefineCompound},
    {{0, "\x89PNG\r\n\x1A\n"}, {}, names::Png},
    {{0, "\xFF\xD8\xFF"}, {}, names::Jpeg},
    {{0, "GIF87a"}, {}, names::Gif},
    {{0, "GIF89a"}, {}, names::Gif},
    {{0, "RIFF"}, {8, "WEBP"}, names::Webp},
    {{0, "RIFF"}, {8, "WAVE"}, names::Wav},
    {{0, "RIFF"}, {8, "AVI "}, names::Avi},
    {{0, "BM"}, {}, names::Bmp, RefineBitmap},
    {{0, "\0\0\1\0"sv}, {}, names::Ico, RefineIcon},
    {{0, "II*\0"sv}, {}, names::Tiff},
    {{0, "MM\0*"sv}, {}, names::Tiff},
    {{4, "ftyp"}, {8, "avif"}, names::Avif},
    {{4, "ftyp"}, {8, "avis"}, names::Avif},
    {{4, "ftyp"}, {8, "heic"}, names::Heic},
    {{4, "ftyp"}, {8, "heix"}, names::Heic},
    {{4, "ftyp"}, {8, "mif1"}, names::Heic},
    {{4, "ftyp"}, {}, names::Mp4},
    {{0, "8BPS"}, {4, "\0\1"sv}, names::Psd},
    {{0, "ID3"}, {}, names::Mp3, RefineId3},
    {{0, "OggS"}, {4, "\0"sv}, names::Ogg},
    {{0, "fLaC"}, {}, names::Flac},
    {{0, "\x1A\x45\xDF\xA3"}, {}, names::Webm},
    {{0, "wOFF"}, {}, names::Woff},
    {{0, "wOF2"}, {}, names::Woff2},
    {{0, "\0\1\0\0\0"sv}, {}, names::TrueType},
    {{0, "OTTO"}, {4, "\0"sv}, names::OpenType},
    {{0, "MZ"}, {}, names::Exe, RefinePe},
    {{0, "\x7F"
         "ELF"},
     {},
     names::Elf},
    {{0, "\xFE\xED\xFA\xCE"}, {}, names::MachO},
    {{0, "\xFE\xED\xFA\xCF"}, {}, names::MachO},
    {{0, "\xCE\xFA\xED\xFE"}, {}, names::MachO},
    {{0, "\xCF\xFA\xED\xFE"}, {}, names::MachO},
    {{0, "\0asm"sv}, {}, names::Wasm},
    {{0, "SQLite format 3\0"sv}, {}, names::Sqlite},
    {{0, "\x1F\x8B\x08"}, {}, names::Gzip},
    {{0, "BZh"}, {4, "1AY&SY"}, names::Bzip2},
    {{0, "BZh"}, {4, "\x17rE8P\x90"}, names::Bzip2}, // a stream with no data
    {{0, "\xFD"
         "7zXZ\0"sv},
     {},
     names::Xz},
    {{0, "7z\xBC\xAF\x27\x1C"}, {}, names::SevenZip},
    {{0, "Rar!\x1A\x07"}, {}, names::Rar},
};

bool Matches(std::string_view head, const Signature& s) {
    return HasAt(head, s.first.offset, s.first.bytes) &&
           (s.second.bytes.empty() || HasAt(head, s.second.offset, s.second.bytes));
}

} // namespace

std::optional<FormatName> MatchSignature(const FileSample& file) {
    for (const Signature& s : kSignatures) {
        if (!Matches(file.Head(), s)) continue;
        if (!s.refine) return s.name;
        if (const auto refined = s.refine(file, s.name)) return refined;
    }
    return std::nullopt;
}

} // namespace orvane::detfile
