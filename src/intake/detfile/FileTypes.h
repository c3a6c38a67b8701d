#pragma once
// The desktop's name and icon for a kind of file, found by the file's name alone: the file need
// not exist.
#include <string>

namespace orvane::modFileTypes {

// The type's description in the user's language ("HTML document"), at most 79 bytes; empty when
// the desktop knows no type for the name.
std::string GetFileType(const std::string& Path);

// Icon theme names: the type's own icon and one to fall back on where a theme lacks it.
struct FileIcon {
    std::string name;
    std::string fallback;
};

// Programs (".exe") get the program icon and unknown kinds the generic one.
FileIcon GetFileIcon(const std::string& Path);

} // namespace orvane::modFileTypes
