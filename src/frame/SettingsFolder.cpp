#include "frame/SettingsFolder.h"

#include "frame/ProgramFolder.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

namespace orvane {
namespace {

std::string HomeFolder() {
    if (const char* home = std::getenv("HOME"); home && *home) return home;
    if (const passwd* pw = getpwuid(getuid()); pw && pw->pw_dir) return pw->pw_dir;
    return "/tmp";
}

std::string WithoutTrailingSlashes(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

// The XDG base directory rules: a relative or empty value is to be ignored.
std::string UserConfigFolder() {
    const char* xdg = std::getenv("XDG_CONFIG_HOME");
    const std::string base = (xdg && xdg[0] == '/')
                                 ? WithoutTrailingSlashes(xdg)
                                 : WithoutTrailingSlashes(HomeFolder()) + "/.config";
    return base + "/orvane/";
}

// An installed program folder (PREFIX/lib/orvane/) has the desktop entry two levels up. The test
// matters for root, who may write anywhere, and must not leave settings in a package's folder.
bool IsInstalledFolder(const std::string& folder) {
    std::error_code ec;
    return std::filesystem::exists(folder + "/../../share/applications/" + kDesktopEntryName, ec);
}

} // namespace

std::string SettingsFolderFor(const std::string& programFolder) {
    if (!programFolder.empty() && access(programFolder.c_str(), W_OK | X_OK) == 0 &&
        !IsInstalledFolder(programFolder))
        return programFolder.back() == '/' ? programFolder : programFolder + '/';
    return UserConfigFolder();
}

std::string SettingsFolder() {
    return SettingsFolderFor(gAppPath);
}

bool MakeSettingsFolder(const std::string& folder) {
    std::error_code ec;
    if (std::filesystem::is_directory(folder, ec)) return true;
    std::filesystem::create_directories(folder, ec);
    return std::filesystem::is_directory(folder, ec);
}

} // namespace orvane
