#pragma once
// Opening a file or page in the user's own programs. Programs start with an argument list, never
// through a shell, and run on without being watched.
#include "settings/ViewOptions.h"

#include <string>
#include <vector>

namespace orvane {

// Opens Path in the desktop's plain-text application. False, with nothing started, when there
// is none.
bool LoadFileInNotepad(const std::string& Path);

// A web address in the default browser; otherwise the file in the program the
// desktop associates with its type, or the Open With chooser where there is none.
void ShowHTMLFileInBrowser(const std::string& Target, SourceType Source);

// Lets the user pick a program to open Path with.
void ShowOpenWithDialog(const std::string& Path);

// Starts a program with arguments, detached. False when it could not be started.
bool StartProgram(const std::vector<std::string>& command);

} // namespace orvane
