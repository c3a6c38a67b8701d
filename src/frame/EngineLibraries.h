#pragma once
// The engine libraries that live in the program's folder and are loaded at run time, so that a
// missing one is found by the start-up probe and told to the user instead of stopping the loader.
#include <string>

namespace orvane {

enum class Engine { KWCommon, DetFile, Detagger, DocTxt, LineDiff };

// File name in the program's folder, e.g. "libkwcommon.so".
std::string EngineFileName(Engine engine);

// Loads `engine` from `folder` (ending in '/') unless it is loaded already. False when it cannot
// be loaded.
bool LoadEngine(Engine engine, const std::string& folder);

// Address of an exported function; loads the engine from gAppPath first if needed. Throws
// RuntimeError 429 when the library cannot be loaded and 453 when the entry point is missing.
void* EngineSymbol(Engine engine, const char* name);

// Unloads every engine, in the order of the enumeration.
void FreeEngines();

// The start-up probe: loads kwcommon, detfile, detagger and doctxt from `folder`, in that order,
// stopping at the first failure. On failure `moduleName` names the library to report; a missing
// doctxt is reported under the detagger's name, as the installer's support texts expect.
bool ProbeRequiredEngines(const std::string& folder, std::string& moduleName);

} // namespace orvane
