#pragma once
// All text extraction settings: one instance, in the session, lives from start to exit.
// No validation here; the options dialogue keeps OriginalFormat and the layout switches apart.
#include <cstdint>

namespace orvane {

struct clsExtractionOptions {
    bool OriginalFormat = true;
    bool LimitLineLength = false;
    bool SingleLineParagraph = false;
    std::int32_t MaxNumCharsPerLine = 79;
    // The two MSWord* width fields are shown and saved but nothing converts with them: the
    // office path is limited by LimitLineLength and MaxNumCharsPerLine as well.
    bool MSWordLimitLineLength = false;
    std::int32_t MSWordMaxNumCharsPerLine = 79;
    // 2 "Text Only", 3 "Text Only with Line Breaks", 4 "MS-DOS Text Only",
    // 5 "MS-DOS Text Only with Line Breaks", 7 "Encoded Text (Unicode)".
    std::int32_t MSWordSaveAsFormat = 2;
    // 0: internal engine first, office suite second; any other value: the other way round.
    std::int32_t EnginePreference = 0;
};

} // namespace orvane
