#pragma once
// Where the settings file and ERR_DETAIL.TXT live. A portable program keeps them beside itself;
// an installed one cannot write there, so they go to the user's configuration folder instead.
#include <string>

namespace orvane {

// The desktop entry's file name, installed in PREFIX/share/applications/.
inline constexpr const char* kDesktopEntryName = "io.github.orvane.Orvane.desktop";

// The program folder when the process may write to it and it is not an installed copy, else
// $XDG_CONFIG_HOME/orvane/ (by default
// ~/.config/orvane/). Ends in '/'. The folder may not exist yet: MakeSettingsFolder makes it.
std::string SettingsFolderFor(const std::string& programFolder);

// SettingsFolderFor(gAppPath).
std::string SettingsFolder();

// Creates the folder with its parents where it is missing; false when that fails.
bool MakeSettingsFolder(const std::string& folder);

} // namespace orvane
