#pragma once
// The program's small toolbox of file, path and string helpers. The path and string functions of
// the kwcommon engine library are reached through the thin wrappers at the end.
#include <string>

namespace orvane {

bool FileExists(const std::string& Path);
bool StringsAreEqual(const std::string& First, const std::string& Second);
// CompareMode 0: binary; otherwise without regard to (ASCII) letter case.
bool StringsAreEqualCompare(const std::string& First, const std::string& Second, int CompareMode);
std::string GetFileNameFromPath(const std::string& Path);
std::string GetFileExtension(const std::string& Path);
// $TMPDIR or /tmp, ending in '/'.
std::string GetSystemTempFolder();
// Creates a unique empty file named Prefix (three characters at most) + hex digits + ".tmp" in
// Folder (the system temporary folder when empty) and returns that name with its extension
// replaced by Extension. An empty Extension becomes "tmp" (the caller's variable too); with any
// other extension the created ".tmp" file stays behind. Empty on failure.
std::string GetTempFileSpec(const std::string& Prefix, std::string& Extension,
                            const std::string& Folder);
std::string StripNulls(const std::string& Text);
std::string EncloseInQuotes(const std::string& Text);
// An empty path stays empty; any other gets a trailing '/' unless it ends in '/' or '\'.
std::string AddTrailingBackslash(const std::string& Path);
// True for a text that starts with a URL scheme of two or more characters and a colon.
bool IsWebAddress(const std::string& Text);
std::string Trim(const std::string& Text);

// The kwcommon engine's functions.
namespace kw {
std::string ReplaceExtension(const std::string& Path, const std::string& Extension);
std::string RemainingString(const std::string& Whole, const std::string& Leading);
std::string ReplaceString(const std::string& Text, const std::string& Search,
                          const std::string& Replacement);
std::string NormalizePath(const std::string& Path);
std::string GetLastItemInPath(const std::string& Path);
int GetNextSlashPos(const std::string& Path, int Start);
bool PBFileExists(const std::string& Path);
bool APIFileExists(const std::string& Path);
} // namespace kw

} // namespace orvane
