#include "settings/IniFileName.h"

#include <cerrno>
#include <climits>
#include <string_view>
#include <unistd.h>

namespace orvane {
namespace {

std::string& OverrideName() {
    static std::string name;
    return name;
}

std::string ExecutableBaseName() {
    char path[PATH_MAX];
    const ssize_t n = readlink("/proc/self/exe", path, sizeof path - 1);
    if (n <= 0) return program_invocation_short_name; // no /proc: the name we were started by
    std::string exe(path, static_cast<std::size_t>(n));
    // The kernel marks a binary replaced while it runs (an update); the settings stay the same.
    constexpr std::string_view kDeleted = " (deleted)";
    if (exe.ends_with(kDeleted)) exe.resize(exe.size() - kDeleted.size());
    return exe.substr(exe.rfind('/') + 1);
}

} // namespace

std::string ProgramIniFileName() {
    if (!OverrideName().empty()) return OverrideName();
    return ExecutableBaseName() + ".ini";
}

void SetProgramIniFileName(const std::string& name) {
    OverrideName() = name;
}

} // namespace orvane
