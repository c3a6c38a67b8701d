#pragma once
// The program options in the settings file: the session's options and paths, the main window's
// option checks and the grids' line style and font. Read once when the main window loads, saved
// once when it closes; in between the session and the window are the live copy.
#include "settings/OptionsWindow.h"
#include "settings/Session.h"

namespace orvane::modIniFile {

// A failure ends the read where it happens and goes to the error reporter: the options after it
// keep the values they had.
void ReadProgramOptionsFromIniFile(Session& session, OptionsWindow& window);

// ForceTextCompare is never written: a line for it, set by hand, stays as it is.
void SaveProgramOptionsToIniFile(const Session& session, OptionsWindow& window);

} // namespace orvane::modIniFile
