#pragma once
// Which program the desktop opens a file type with: the freedesktop.org default-application
// lists (mimeapps.list) and desktop entries, read directly so that no helper tool is needed.
#include <string>
#include <vector>

namespace orvane::desktop {

// The MIME type of a file by its extension ("text/html" for .htm); application/octet-stream
// when unknown.
std::string MimeTypeOfPath(const std::string& path);

// The desktop entry id ("firefox.desktop") of the default application for a MIME type, or empty.
std::string DefaultApplication(const std::string& mimeType);

// The argument list that starts a desktop entry on `target`, or empty when the entry is missing
// or cannot run. Field codes are expanded as the desktop entry format says.
std::vector<std::string> CommandFor(const std::string& desktopId, const std::string& target);

} // namespace orvane::desktop
