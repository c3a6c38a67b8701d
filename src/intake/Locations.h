#pragma once
// What an input names, decided alike by the compare driver and the view commands, and the words
// both use when it cannot be had.
#include "settings/ViewOptions.h"

#include <string>

namespace orvane {

enum class LocationKind { WebAddress, BareHostName, LocalFile };

// A scheme makes an address; a text starting with "www" in any case and no scheme is refused,
// never looked up as a file.
LocationKind ClassifyLocation(const std::string& text);

inline const char* SideName(Side side) {
    return side == Side::Original ? "Original" : "Revised";
}

inline std::string MissingFileText(Side side) {
    return std::string(SideName(side)) + " file is not an existing file.";
}

inline std::string DownloadFailureText(Side side) {
    return std::string(SideName(side)) +
           " Web page was NOT downloaded successfully\r\n\r\nMake sure that you are connected to "
           "the Internet\r\nand that the web page exists.";
}

} // namespace orvane
