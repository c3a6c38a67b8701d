#include "intake/detfile/MimeDatabase.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <fnmatch.h>
#include <fstream>
#include <sstream>

namespace orvane {
namespace {

std::string Env(const char* name) {
    const char* v = std::getenv(name);
    return v ? v : "";
}

std::string Lower(std::string s) {
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

std::vector<std::string> Split(const std::string& s, char sep) {
    std::vector<std::string> parts;
    std::stringstream in(s);
    for (std::string part; std::getline(in, part, sep);)
        parts.push_back(part);
    return parts;
}

std::string ReadText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    std::stringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

struct GlobMatch {
    int weight = -1;
    std::size_t length = 0;
    std::string type;
};

// One line of globs2: weight:type:pattern[:flags]; the flag "cs" makes it case-sensitive.
void ConsiderGlob(const std::string& line, const std::string& name, GlobMatch& best) {
    const std::vector<std::string> f = Split(line, ':');
    if (f.size() < 3 || line.starts_with('#')) return;
    const bool caseSensitive = f.size() > 3 && std::ranges::count(Split(f[3], ','), "cs") > 0;
    const std::string pattern = caseSensitive ? f[2] : Lower(f[2]);
    const std::string subject = caseSensitive ? name : Lower(name);
    if (::fnmatch(pattern.c_str(), subject.c_str(), 0) != 0) return;
    const int weight = std::atoi(f[0].c_str());
    if (weight > best.weight || (weight == best.weight && pattern.size() > best.length))
        best = {weight, pattern.size(), f[1]};
}

// A "type:icon" list, as the files icons and generic-icons hold.
std::string IconFromList(const std::vector<std::string>& folders, const char* list,
                         const std::string& type) {
    for (const std::string& folder : folders) {
        std::ifstream in(folder + list);
        for (std::string line; std::getline(in, line);)
            if (line.size() > type.size() && line.starts_with(type) && line[type.size()] == ':')
                return line.substr(type.size() + 1);
    }
    return {};
}

std::string UnescapeXml(std::string s) {
    static const std::pair<std::string_view, char> kEntities[] = {
        {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}, {"&amp;", '&'}};
    for (const auto& [entity, c] : kEntities)
        for (std::size_t at = s.find(entity); at != std::string::npos; at = s.find(entity, at + 1))
            s.replace(at, entity.size(), 1, c);
    return s;
}

// The <comment> elements of a type's file, by their xml:lang ("" for the untranslated one).
std::vector<std::pair<std::string, std::string>> Comments(const std::string& xml) {
    std::vector<std::pair<std::string, std::string>> comments;
    for (std::size_t at = xml.find("<comment"); at != std::string::npos;
         at = xml.find("<comment", at + 1)) {
        const std::size_t tagEnd = xml.find('>', at);
        const std::size_t close = xml.find("</comment>", tagEnd);
        if (tagEnd == std::string::npos || close == std::string::npos) break;
        const std::string tag = xml.substr(at, tagEnd - at);
        std::string lang;
        if (const std::size_t l = tag.find("xml:lang=\""); l != std::string::npos)
            lang = tag.substr(l + 10, tag.find('"', l + 10) - l - 10);
        comments.emplace_back(lang, UnescapeXml(xml.substr(tagEnd + 1, close - tagEnd - 1)));
    }
    return comments;
}

} // namespace

std::vector<std::string> MimeDatabaseFolders() {
    std::string home = Env("XDG_DATA_HOME");
    if (home.empty() && !Env("HOME").empty()) home = Env("HOME") + "/.local/share";
    std::string dirs = Env("XDG_DATA_DIRS");
    if (dirs.empty()) dirs = "/usr/local/share:/usr/share";
    std::vector<std::string> folders;
    if (!home.empty()) folders.push_back(home + "/mime/");
    for (const std::string& d : Split(dirs, ':'))
        if (!d.empty()) folders.push_back(d + "/mime/");
    return folders;
}

std::string MimeTypeForFileName(const std::vector<std::string>& folders,
                                const std::string& fileName) {
    GlobMatch best;
    for (const std::string& folder : folders) {
        GlobMatch inFolder;
        std::ifstream in(folder + "globs2");
        for (std::string line; std::getline(in, line);)
            ConsiderGlob(line, fileName, inFolder);
        if (inFolder.weight > best.weight ||
            (inFolder.weight == best.weight && inFolder.length > best.length))
            best = inFolder;
    }
    return best.type;
}

std::string MimeTypeComment(const std::vector<std::string>& folders, const std::string& type,
                            const std::string& language) {
    for (const std::string& folder : folders) {
        const std::string xml = ReadText(folder + type + ".xml");
        if (xml.empty()) continue;
        const auto comments = Comments(xml);
        const std::string shortLanguage = language.substr(0, language.find('_'));
        for (const std::string& want : {language, shortLanguage, std::string()})
            for (const auto& [lang, text] : comments)
                if (lang == want) return text;
        return {};
    }
    return {};
}

std::string MimeTypeIcon(const std::vector<std::string>& folders, const std::string& type) {
    std::string icon = IconFromList(folders, "icons", type);
    if (icon.empty()) std::ranges::replace(icon = type, '/', '-');
    return icon;
}

std::string MimeTypeGenericIcon(const std::vector<std::string>& folders, const std::string& type) {
    const std::string icon = IconFromList(folders, "generic-icons", type);
    return icon.empty() ? type.substr(0, type.find('/')) + "-x-generic" : icon;
}

std::string MessagesLanguage() {
    std::string value;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (value.empty()) value = Env(name);
    value = value.substr(0, value.find_first_of(".@"));
    return value == "C" || value == "POSIX" ? std::string() : value;
}

} // namespace orvane
