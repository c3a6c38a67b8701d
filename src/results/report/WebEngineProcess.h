#pragma once

namespace orvane {

// Must run before the QApplication exists: the report view's engine reads these once.
// The sandbox stays on, except for root, where the engine refuses to start with it.
void PrepareWebEngineProcess();

} // namespace orvane
