#include "intake/Locations.h"

#include "frame/KWCommon.h"

namespace orvane {

LocationKind ClassifyLocation(const std::string& text) {
    if (IsWebAddress(text)) return LocationKind::WebAddress;
    if (text.size() >= 3 && StringsAreEqualCompare(text.substr(0, 3), "WWW", 1))
        return LocationKind::BareHostName;
    return LocationKind::LocalFile;
}

} // namespace orvane
