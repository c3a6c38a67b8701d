#pragma once
// Small files of the formats the recogniser knows, made from their published layouts, so that
// the tests carry no binary samples.
#include <cstdint>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace orvane::test {

inline std::string LE(std::uint32_t v, int width) {
    std::string out;
    for (int k = 0; k < width; ++k)
        out += static_cast<char>((v >> (8 * k)) & 0xFF);
    return out;
}

inline std::string Padded(std::string bytes, std::size_t size, char fill = '\0') {
    bytes.resize(size, fill);
    return bytes;
}

// A ZIP archive of stored entries; an entry with `hole` bytes is written as a sparse gap, so a
// large archive costs no disk.
class ZipBuilder {
  public:
    void Add(const std::string& name, const std::string& data, std::uint64_t hole = 0) {
        const std::uint32_t size = static_cast<std::uint32_t>(data.size() + hole);
        central_ += "PK\x01\x02" + LE(20, 2) + LE(20, 2) + LE(0, 2) + LE(0, 2) + LE(0, 4) +
                    LE(0, 4) + LE(size, 4) + LE(size, 4) + LE(name.size(), 2) + LE(0, 2) +
                    LE(0, 2) + LE(0, 2) + LE(0, 2) + LE(0, 4) + LE(offset_, 4) + name;
        pieces_.push_back({"PK\x03\x04" + LE(20, 2) + LE(0, 2) + LE(0, 2) + LE(0, 4) + LE(0, 4) +
                               LE(size, 4) + LE(size, 4) + LE(name.size(), 2) + LE(0, 2) + name +
                               data,
                           hole});
        offset_ += 30 + name.size() + size;
        ++entries_;
    }
    void WriteTo(const std::string& path) const {
        std::ofstream out(path, std::ios::binary);
        for (const auto& [bytes, hole] : pieces_) {
            out << bytes;
            out.seekp(static_cast<std::streamoff>(hole), std::ios::cur);
        }
        out << central_ << "PK\x05\x06" << LE(0, 4) << LE(entries_, 2) << LE(entries_, 2)
            << LE(central_.size(), 4) << LE(offset_, 4) << LE(0, 2);
    }

  private:
    std::vector<std::pair<std::string, std::uint64_t>> pieces_;
    std::string central_;
    std::uint32_t offset_ = 0, entries_ = 0;
};

inline std::string Utf16Name(const std::string& ascii) {
    std::string out;
    for (char c : ascii)
        out += std::string(1, c) + '\0';
    return out;
}

// An OLE2 compound file with 512-byte sectors: sector 0 holds the allocation table, the
// directory follows as one chain, four entries to a sector, the root entry first.
inline std::string CompoundFile(const std::vector<std::string>& streams) {
    constexpr std::uint32_t kEnd = 0xFFFFFFFE, kFree = 0xFFFFFFFF, kFatSector = 0xFFFFFFFD;
    std::vector<std::string> names{"Root Entry"};
    names.insert(names.end(), streams.begin(), streams.end());
    const std::uint32_t dirSectors = static_cast<std::uint32_t>((names.size() + 3) / 4);
    std::string header = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + std::string(16, '\0') + LE(0x3E, 2) +
                         LE(3, 2) + LE(0xFFFE, 2) + LE(9, 2) + LE(6, 2) + std::string(10, '\0') +
                         LE(1, 4) + LE(1, 4) + LE(0, 4) + LE(4096, 4) + LE(kEnd, 4) + LE(0, 4) +
                         LE(kEnd, 4) + LE(0, 4) + LE(0, 4);
    for (int k = 1; k < 109; ++k)
        header += LE(kFree, 4);
    std::string fat = LE(kFatSector, 4);
    for (std::uint32_t s = 1; s <= dirSectors; ++s)
        fat += LE(s == dirSectors ? kEnd : s + 1, 4);
    std::string directory;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string name = Utf16Name(names[i]);
        directory += Padded(name, 64) + LE(name.size() + 2, 2) + LE(i == 0 ? 5 : 2, 1);
        directory = Padded(directory, 128 * (i + 1));
    }
    return Padded(header, 512) + Padded(fat, 512, '\xFF') + Padded(directory, 512 * dirSectors);
}

// A Windows program: the DOS header points at a PE header whose flags may mark a library.
inline std::string PortableExecutable(bool library) {
    const std::string pe = std::string("PE\0\0", 4) + LE(0x14C, 2) + LE(1, 2) +
                           std::string(12, '\0') + LE(0xE0, 2) + LE(library ? 0x2102 : 0x0102, 2);
    return Padded(Padded("MZ", 0x3C) + LE(0x80, 4), 0x80) + Padded(pe, 256);
}

inline std::string Bitmap() {
    return Padded("BM" + LE(58, 4) + LE(0, 4) + LE(54, 4) + LE(40, 4) + LE(1, 4) + LE(1, 4), 58);
}

} // namespace orvane::test
