#include "intake/detfile/FileTypes.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "intake/detfile/MimeDatabase.h"

#include <cctype>

namespace orvane::modFileTypes {
namespace {

// Type names have always fitted a field of 80 bytes with its terminator; a cut keeps characters
// whole.
constexpr std::size_t kTypeNameBytes = 79;

std::string CutToField(std::string text) {
    if (text.size() <= kTypeNameBytes) return text;
    std::size_t end = kTypeNameBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;
    return text.substr(0, end);
}

std::string Lower(std::string s) {
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

} // namespace

std::string GetFileType(const std::string& Path) {
    try {
        const std::vector<std::string> folders = MimeDatabaseFolders();
        const std::string type = MimeTypeForFileName(folders, GetFileNameFromPath(Path));
        if (type.empty()) return {};
        return CutToField(MimeTypeComment(folders, type, MessagesLanguage()));
    } catch (...) {
        ReportUnexpectedError("modFileTypes.GetFileType");
        return {};
    }
}

FileIcon GetFileIcon(const std::string& Path) {
    const FileIcon program{"application-x-executable", "application-x-generic"};
    const FileIcon unknown{"application-x-generic", "text-x-generic"};
    if (Lower(GetFileExtension(Path)) == "exe") return program;
    const std::vector<std::string> folders = MimeDatabaseFolders();
    const std::string type = MimeTypeForFileName(folders, GetFileNameFromPath(Path));
    if (type.empty()) return unknown;
    return {MimeTypeIcon(folders, type), MimeTypeGenericIcon(folders, type)};
}

} // namespace orvane::modFileTypes
