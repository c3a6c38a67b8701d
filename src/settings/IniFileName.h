#pragma once
// The settings file's name, without folder: the executable's own base name followed by ".ini".
// The folder is gAppPath, which CIniFile puts in front.
#include <string>

namespace orvane {

std::string ProgramIniFileName();

// Tests run from their own executable and name the file they want; an empty name restores the
// executable's.
void SetProgramIniFileName(const std::string& name);

} // namespace orvane
