#pragma once
// The program's side of the recogniser library: its calls bound at run time, its codes turned
// into the reasons the user reads.
#include <string>

namespace orvane::modDetFile {

// The recogniser's format code and description for the file. On a failure code ("!EMPTY",
// "!FERR", "!UNK", or another beginning with '!') returns false, sets Known to 0 and the reason,
// and still hands out the code and description. Errors are thrown to the caller's trap.
bool DetectFileFormat(const std::string& Path, std::string& Format, std::string& Description,
                      short& Known, std::string& FailureReason);

// The library's text score of the whole file (WholeFile 1) or of its head (0); -1 when the file
// cannot be read.
int GetFileTextScore(const std::string& Path, int WholeFile);

} // namespace orvane::modDetFile
