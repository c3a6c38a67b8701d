#include "output/DesktopApps.h"

#include "frame/KWCommon.h"

#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <fstream>

namespace orvane::desktop {
namespace {

constexpr int kQueryTimeoutMs = 10000;

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

std::string FindEntryFile(const std::string& desktopId) {
    return QStandardPaths::locate(QStandardPaths::ApplicationsLocation,
                                  QString::fromStdString(desktopId))
        .toStdString();
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
    static const QMimeDatabase database;
    const QMimeType type = database.mimeTypeForFile(QString::fromStdString(path));
    return type.isValid() ? type.name().toStdString() : "application/octet-stream";
}

std::string DefaultApplication(const std::string& mimeType) {
    QProcess query;
    query.start("xdg-mime", {"query", "default", QString::fromStdString(mimeType)});
    // A desktop that does not answer in time names no program; the caller then offers a choice.
    if (!query.waitForFinished(kQueryTimeoutMs) || query.exitCode() != 0) {
        query.kill();
        return {};
    }
    const std::string id = QString::fromUtf8(query.readAllStandardOutput()).trimmed().toStdString();
    return id.empty() || FindEntryFile(id).empty() ? std::string() : id;
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
