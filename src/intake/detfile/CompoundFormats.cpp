#include "intake/detfile/CompoundFormats.h"

#include "intake/detfile/ByteOrder.h"

#include <string>
#include <vector>

namespace orvane::detfile {
namespace {

constexpr std::size_t kSectorShiftAt = 0x1E, kFirstDirectorySectorAt = 0x30;
constexpr std::size_t kHeaderFatSectorsAt = 0x4C, kHeaderFatSectors = 109;
constexpr std::size_t kEntryBytes = 128, kEntryNameLengthAt = 0x40;
constexpr std::uint32_t kLastRegularSector = 0xFFFFFFF9; // above it: end of chain and markers
// The streams that name a format are near the root; a directory is followed this far, which
// also ends a chain that loops.
constexpr int kMaxDirectorySectors = 64;

struct Header {
    std::uint32_t sectorSize = 0;
    std::uint32_t firstDirectorySector = 0;
};

std::uint64_t SectorOffset(const Header& h, std::uint32_t sector) {
    return (static_cast<std::uint64_t>(sector) + 1) * h.sectorSize;
}

// The sector after `sector` in its chain, through the allocation table the header lists.
std::uint32_t NextSector(const FileSample& file, const Header& h, std::uint32_t sector) {
    const std::uint32_t perFatSector = h.sectorSize / 4;
    const std::uint32_t fatIndex = sector / perFatSector;
    if (fatIndex >= kHeaderFatSectors) return ~0u; // listed beyond the header: not followed
    const std::uint32_t fatSector = ReadLE(file.Head(), kHeaderFatSectorsAt + 4 * fatIndex, 4);
    if (fatSector > kLastRegularSector) return ~0u;
    const std::string entry =
        file.Slice(SectorOffset(h, fatSector) + 4 * (sector % perFatSector), 4);
    return entry.size() == 4 ? ReadLE(entry, 0, 4) : ~0u;
}

// Directory names are UTF-16; the ones that matter are ASCII.
std::string EntryName(std::string_view entry) {
    const std::uint32_t bytes = std::min<std::uint32_t>(ReadLE(entry, kEntryNameLengthAt, 2), 64);
    std::string name;
    for (std::size_t at = 0; at + 1 < bytes; at += 2) {
        const std::uint32_t unit = ReadLE(entry, at, 2);
        if (unit == 0) break;
        name += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    return name;
}

std::vector<std::string> DirectoryNames(const FileSample& file, const Header& h) {
    std::vector<std::string> streams;
    std::uint32_t sector = h.firstDirectorySector;
    for (int n = 0; n < kMaxDirectorySectors && sector <= kLastRegularSector; ++n) {
        const std::string block = file.Slice(SectorOffset(h, sector), h.sectorSize);
        for (std::size_t at = 0; at + kEntryBytes <= block.size(); at += kEntryBytes)
            streams.push_back(EntryName(std::string_view(block).substr(at, kEntryBytes)));
        if (block.size() < h.sectorSize) break;
        sector = NextSector(file, h, sector);
    }
    return streams;
}

FormatName FromStreamNames(const std::vector<std::string>& streams) {
    for (const std::string& n : streams) {
        if (n == "WordDocument") return names::Doc;
        if (n == "Workbook" || n == "Book") return names::Xls;
        if (n == "PowerPoint Document") return names::Ppt;
        if (n == "__properties_version1.0") return names::Msg;
    }
    return names::Ole2;
}

} // namespace

FormatName ClassifyCompound(const FileSample& file) {
    const std::uint32_t shift = ReadLE(file.Head(), kSectorShiftAt, 2);
    if (shift != 9 && shift != 12) return names::Ole2; // only 512 and 4096 byte sectors exist
    const Header h{1u << shift, ReadLE(file.Head(), kFirstDirectorySectorAt, 4)};
    return FromStreamNames(DirectoryNames(file, h));
}

} // namespace orvane::detfile
