#pragma once
// Which program the desktop opens a file type with, asked of the desktop itself: the shared MIME
// database through QMimeDatabase, the default application through `xdg-mime query default`
// (which defers to the running desktop's own tools), the entry's command from its Exec line.
#include <string>
#include <vector>

namespace orvane::desktop {

// The MIME type of a file by its name and, where that says nothing, its content;
// application/octet-stream when unknown.
std::string MimeTypeOfPath(const std::string& path);

// The desktop entry id ("firefox.desktop") of the default application for a MIME type, or empty
// when the desktop names none or cannot be asked.
std::string DefaultApplication(const std::string& mimeType);

// The argument list that starts a desktop entry on `target`, or empty when the entry is missing
// or cannot run. Field codes are expanded as the desktop entry format says.
std::vector<std::string> CommandFor(const std::string& desktopId, const std::string& target);

} // namespace orvane::desktop
