#pragma once
// The program options in the settings file: gViewOptions, gExtractionOptions, the editor and
// converter paths, the main window's option checks and the grids' line style and font.
// Read once when the main window loads (gViewOptions and gExtractionOptions must exist), saved
// once when it closes; in between the objects and the window are the live copy.
#include "settings/OptionsWindow.h"

namespace orvane::modIniFile {

// A failure ends the read where it happens and goes to the error reporter: the options after it
// keep the values they had.
void ReadProgramOptionsFromIniFile(OptionsWindow& window);

// ForceTextCompare is never written: a line for it, set by hand, stays as it is.
void SaveProgramOptionsToIniFile(OptionsWindow& window);

} // namespace orvane::modIniFile
