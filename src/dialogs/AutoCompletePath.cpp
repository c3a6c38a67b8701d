#include "dialogs/AutoCompletePath.h"

#include "frame/KWCommon.h"
#include "frame/Prompter.h"

#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace orvane::modAutoCompletePath {
namespace {

bool keyWasPrintable = false;
bool completionRunning = false;

using Directory = std::unique_ptr<DIR, int (*)(DIR*)>;

Directory OpenFolder(const std::string& folder) {
    return {::opendir(folder.c_str()), ::closedir};
}

bool StartsWithNoCase(const std::string& name, const std::string& prefix) {
    return name.size() >= prefix.size() &&
           StringsAreEqualCompare(name.substr(0, prefix.size()), prefix, 1);
}

bool IsFolder(const std::string& folder, const dirent& entry) {
    if (entry.d_type == DT_DIR) return true;
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK) return false;
    struct stat st;
    return ::stat((folder + entry.d_name).c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

} // namespace

void KeyPress(int keyCode) {
    keyWasPrintable = keyCode >= 32 && keyCode <= 122;
}

bool CompletionRunning() {
    return completionRunning;
}

bool PathExists(const std::string& Path) {
    if (Path.empty()) return false;
    return OpenFolder(kw::NormalizePath(AddTrailingBackslash(Path))) != nullptr;
}

std::string GetCompletedPath(const std::string& Path) {
    if (PathExists(Path)) return kw::NormalizePath(AddTrailingBackslash(Path));
    const std::string last = kw::GetLastItemInPath(Path);
    const std::string folder =
        last.empty() ? kw::NormalizePath(Path) : Path.substr(0, Path.size() - last.size());
    if (!PathExists(folder)) return {};
    Directory dir = OpenFolder(folder);
    if (!dir) return {};
    while (const dirent* entry = ::readdir(dir.get())) {
        DoEvents(); // a keystroke gets in here, and cancels the scan

        if (!completionRunning) break;
        if (!StartsWithNoCase(entry->d_name, last)) continue;
        // The first match decides: a file means no proposal.
        if (!IsFolder(folder, *entry)) return {};
        return AddTrailingBackslash(folder + entry->d_name);
    }
    return {};
}

void AutoCompletePath(PathControl& control) {
    const std::string s = control.Text();
    if (!keyWasPrintable || completionRunning || s.empty()) {
        completionRunning = false;
        return;
    }
    keyWasPrintable = false;
    if (s.back() == '/' || s.back() == '\\' || s.front() == '\\') return;
    completionRunning = true;
    const std::string full = GetCompletedPath(s);
    if (!completionRunning) { // typed during the scan: start over on what the control holds now
        AutoCompletePath(control);
        return;
    }
    const std::size_t n = s.size();
    if (full.size() > n) {
        const int p = kw::GetNextSlashPos(full, static_cast<int>(n) + 1);
        const std::size_t end = p == 0 ? full.size() : static_cast<std::size_t>(p);
        control.SetText(s + full.substr(n, end - n));
        control.Select(static_cast<long>(n), static_cast<long>(control.Text().size() - n));
    }
    completionRunning = false;
}

} // namespace orvane::modAutoCompletePath
