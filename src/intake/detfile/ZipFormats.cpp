#include "intake/detfile/ZipFormats.h"

#include "intake/detfile/ByteOrder.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::detfile {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t kLocalHeader = 30, kCentralHeader = 46, kEndRecord = 22;
constexpr std::size_t kMaxComment = 0xFFFF;
// The parts that name an office format sit among the first few hundred entries; a bigger
// directory is read only this far.
constexpr std::size_t kMaxDirectoryBytes = 1024 * 1024;
constexpr std::size_t kMaxNames = 4096;

struct MimeType {
    std::string_view type;
    FormatName name;
};

// Prefixes, so that templates and master documents go with their kind.
constexpr MimeType kMimeTypes[] = {
    {"application/vnd.oasis.opendocument.text", names::Odt},
    {"application/vnd.oasis.opendocument.spreadsheet", names::Ods},
    {"application/vnd.oasis.opendocument.presentation", names::Odp},
    {"application/vnd.oasis.opendocument.graphics", names::Odg},
    {"application/epub+zip", names::Epub},
};

// OpenDocument and EPUB store "mimetype" first and uncompressed, its content the media type.
std::optional<FormatName> FromMimetypeEntry(std::string_view head) {
    const std::uint32_t method = ReadLE(head, 8, 2), size = ReadLE(head, 18, 4);
    const std::uint32_t nameLength = ReadLE(head, 26, 2), extra = ReadLE(head, 28, 2);
    if (method != 0 || BytesAt(head, kLocalHeader, nameLength) != "mimetype") return std::nullopt;
    const std::string_view type = BytesAt(head, kLocalHeader + nameLength + extra, size);
    for (const MimeType& m : kMimeTypes)
        if (type.starts_with(m.type)) return m.name;
    return std::nullopt;
}

// The names in the central directory, found through the end record in the last 64 KB.
std::vector<std::string> CentralDirectoryNames(const FileSample& file) {
    const std::uint64_t tailSize = std::min<std::uint64_t>(file.Size(), kEndRecord + kMaxComment);
    const std::string tail = file.Slice(file.Size() - tailSize, tailSize);
    const std::size_t end = tail.rfind("PK\x05\x06");
    std::vector<std::string> parts;
    if (end == std::string::npos) return parts;
    const std::uint32_t size = ReadLE(tail, end + 12, 4), offset = ReadLE(tail, end + 16, 4);
    const std::string dir = file.Slice(offset, std::min<std::size_t>(size, kMaxDirectoryBytes));
    for (std::size_t at = 0; parts.size() < kMaxNames && HasAt(dir, at, "PK\x01\x02");) {
        const std::uint32_t nameLength = ReadLE(dir, at + 28, 2);
        const std::uint32_t skip = ReadLE(dir, at + 30, 2) + ReadLE(dir, at + 32, 2);
        if (at + kCentralHeader + nameLength > dir.size()) break;
        parts.emplace_back(dir.substr(at + kCentralHeader, nameLength));
        at += kCentralHeader + nameLength + skip;
    }
    return parts;
}

// A damaged or cut archive has no usable directory; its local headers in the head still tell.
std::vector<std::string> LocalHeaderNames(std::string_view head) {
    constexpr std::uint32_t kSizesFollowData = 0x08;
    std::vector<std::string> parts;
    for (std::size_t at = 0; parts.size() < kMaxNames && HasAt(head, at, "PK\x03\x04");) {
        const std::uint32_t nameLength = ReadLE(head, at + 26, 2);
        if (at + kLocalHeader + nameLength > head.size()) break;
        parts.emplace_back(head.substr(at + kLocalHeader, nameLength));
        if (ReadLE(head, at + 6, 2) & kSizesFollowData) break;
        at += kLocalHeader + nameLength + ReadLE(head, at + 28, 2) + ReadLE(head, at + 18, 4);
    }
    return parts;
}

FormatName FromPartNames(const std::vector<std::string>& parts) {
    bool contentTypes = false, word = false, excel = false, powerPoint = false, manifest = false;
    for (const std::string& p : parts) {
        contentTypes |= p == "[Content_Types].xml";
        word |= p.starts_with("word/");
        excel |= p.starts_with("xl/");
        powerPoint |= p.starts_with("ppt/");
        manifest |= p == "META-INF/MANIFEST.MF";
    }
    if (contentTypes) {
        if (word) return names::Docx;
        if (excel) return names::Xlsx;
        if (powerPoint) return names::Pptx;
        return names::Ooxml;
    }
    return manifest ? names::Jar : names::Zip;
}

} // namespace

FormatName ClassifyZip(const FileSample& file) {
    if (const auto byMimetype = FromMimetypeEntry(file.Head())) return *byMimetype;
    std::vector<std::string> parts = CentralDirectoryNames(file);
    if (parts.empty()) parts = LocalHeaderNames(file.Head());
    return FromPartNames(parts);
}

} // namespace orvane::detfile
