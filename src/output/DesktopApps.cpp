#include "output/DesktopApps.h"

#include "frame/KWCommon.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <map>

namespace orvane::desktop {
namespace {

std::vector<std::string> SplitList(const char* value, const std::string& fallback) {
    std::vector<std::string> parts;
    std::string text = value && *value ? value : fallback;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find(':', start), text.size());
        if (end > start) parts.push_back(AddTrailingBackslash(text.substr(start, end - start)));
        start = end + 1;
    }
    return parts;
}

std::string Home() {
    const char* h = std::getenv("HOME");
    return h ? h : "";
}

std::vector<std::string> ConfigDirs() {
    std::vector<std::string> dirs = SplitList(std::getenv("XDG_CONFIG_HOME"), Home() + "/.config");
    for (auto& d : SplitList(std::getenv("XDG_CONFIG_DIRS"), "/etc/xdg"))
        dirs.push_back(d);
    return dirs;
}

std::vector<std::string> ApplicationDirs() {
    std::vector<std::string> dirs;
    for (auto& d : SplitList(std::getenv("XDG_DATA_HOME"), Home() + "/.local/share"))
        dirs.push_back(d + "applications/");
    for (auto& d : SplitList(std::getenv("XDG_DATA_DIRS"), "/usr/local/share:/usr/share"))
        dirs.push_back(d + "applications/");
    return dirs;
}

// The value of `key` in `[group]` of an ini-like desktop file, or empty.
std::string GroupValue(const std::string& file, const std::string& group, const std::string& key) {
    std::ifstream in(file);
    std::string line, current;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty() && line[0] == '[') {
            current = line.substr(1, line.find(']') - 1);
            continue;
        }
        const std::size_t eq = line.find('=');
        if (current == group && eq != std::string::npos && Trim(line.substr(0, eq)) == key)
            return Trim(line.substr(eq + 1));
    }
    return {};
}

std::string FirstOfList(const std::string& list) {
    return list.substr(0, list.find(';'));
}

std::string FindEntryFile(const std::string& desktopId) {
    for (const std::string& dir : ApplicationDirs()) {
        const std::string path = dir + desktopId;
        if (std::ifstream(path).good()) return path;
    }
    return {};
}

// Splits an Exec value into arguments: double quotes group, a backslash escapes inside them.
std::vector<std::string> SplitExec(const std::string& exec) {
    std::vector<std::string> args;
    std::string current;
    bool quoted = false, any = false;
    for (std::size_t i = 0; i < exec.size(); ++i) {
        const char c = exec[i];
        if (quoted && c == '\\' && i + 1 < exec.size()) {
            current += exec[++i];
        } else if (c == '"') {
            quoted = !quoted;
            any = true;
        } else if (!quoted && (c == ' ' || c == '\t')) {
            if (any || !current.empty()) args.push_back(current);
            current.clear();
            any = false;
        } else {
            current += c;
        }
    }
    if (any || !current.empty()) args.push_back(current);
    return args;
}

} // namespace

std::string MimeTypeOfPath(const std::string& path) {
    static const std::map<std::string, std::string> byExtension{
        {"html", "text/html"},     {"htm", "text/html"},
        {"shtml", "text/html"},    {"xhtml", "application/xhtml+xml"},
        {"txt", "text/plain"},     {"text", "text/plain"},
        {"wtd", "text/plain"},     {"css", "text/css"},
        {"js", "text/javascript"}, {"xml", "application/xml"},
        {"svg", "image/svg+xml"},  {"tmp", "text/html"},
    };
    std::string ext = GetFileExtension(path);
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto it = byExtension.find(ext);
    return it == byExtension.end() ? "application/octet-stream" : it->second;
}

std::string DefaultApplication(const std::string& mimeType) {
    std::vector<std::string> lists;
    for (const std::string& d : ConfigDirs())
        lists.push_back(d + "mimeapps.list");
    for (const std::string& d : ApplicationDirs())
        lists.push_back(d + "mimeapps.list");
    for (const std::string& list : lists) {
        for (const std::string& id :
             {FirstOfList(GroupValue(list, "Default Applications", mimeType)),
              FirstOfList(GroupValue(list, "Added Associations", mimeType))})
            if (!id.empty() && !FindEntryFile(id).empty()) return id;
    }
    for (const std::string& dir : ApplicationDirs()) {
        const std::string id =
            FirstOfList(GroupValue(dir + "mimeinfo.cache", "MIME Cache", mimeType));
        if (!id.empty() && !FindEntryFile(id).empty()) return id;
    }
    return {};
}

std::vector<std::string> CommandFor(const std::string& desktopId, const std::string& target) {
    const std::string file = FindEntryFile(desktopId);
    if (file.empty()) return {};
    const std::vector<std::string> exec = SplitExec(GroupValue(file, "Desktop Entry", "Exec"));
    std::vector<std::string> command;
    bool targetPlaced = false;
    for (const std::string& arg : exec) {
        if (arg == "%f" || arg == "%F" || arg == "%u" || arg == "%U") {
            command.push_back(target);
            targetPlaced = true;
        } else if (arg.size() == 2 && arg[0] == '%') {
            continue; // %i, %c, %k and the deprecated codes expand to nothing here
        } else {
            std::string expanded;
            for (std::size_t i = 0; i < arg.size(); ++i) {
                if (arg[i] != '%') {
                    expanded += arg[i];
                    continue;
                }
                if (i + 1 < arg.size() && arg[i + 1] == '%') expanded += '%';
                ++i; // any other field code inside an argument expands to nothing
            }
            command.push_back(expanded);
        }
    }
    if (command.empty()) return {};
    if (!targetPlaced) command.push_back(target);
    return command;
}

} // namespace orvane::desktop
