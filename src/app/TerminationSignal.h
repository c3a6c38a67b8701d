#pragma once

namespace orvane {

// A desktop session that ends, or `kill`, sends SIGTERM: close the windows as the user would,
// so that the options are saved, instead of dying with them unsaved.
void CloseWindowsOnTerminationSignal();

} // namespace orvane
