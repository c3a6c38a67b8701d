// The detagger's error codes in words. Word for word as users have always read them, the
// missing full stop and the double blanks included.
#include "intake/Detagger.h"

#include <array>

namespace orvane {

std::string DetaggerErrorText(int code) {
    static constexpr std::array<const char*, 11> kTexts = {
        "API call was not made.  The converter handle is probably invalid.",
        "A NULL or empty argument has passed where one was expected.",
        "The supplied string buffer is too small to receive the requested data.",
        "Failed to load policy value. Either the policy name was incorrect, or the value was "
        "invalid.",
        "The specified file could not be found",
        "The specified file could not be opened.",
        "A fatal error occurred during conversion.",
        "No HTML file has been specified.",
        "No TEXT file has been specified.",
        "Unknown policy name.",
        "Invalid policy value.",
    };
    if (code < 1 || code > static_cast<int>(kTexts.size())) return {};
    return kTexts[static_cast<std::size_t>(code - 1)];
}

} // namespace orvane
