#pragma once
#include <string>

namespace orvane {

// Start-up: proves the engine libraries load, creates the globals and shows the splash, which
// then shows the main window with `commandLine`. False when the program must end at once.
bool Main(const std::string& appFolder, const std::string& commandLine);

// The orderly end after the window loop: unloads the engine libraries.
void EndProgram();

} // namespace orvane
