#include "report/Markup.h"

#include "intake/html/Utf8.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace orvane::report {

namespace {

void AppendEscaped(std::string& out, char32_t c, bool attribute) {
    switch (c) {
    case U'&':
        out += "&amp;";
        return;
    case U'<':
        out += "&lt;";
        return;
    case U'>':
        out += "&gt;";
        return;
    case U'"':
        if (attribute) {
            out += "&quot;";
            return;
        }
        break;
    case 0xA0:
        out += "&nbsp;";
        return;
    default:
        break;
    }
    html::AppendUtf8(out, c);
}

bool HasScheme(std::string_view address) {
    for (std::size_t i = 0; i < address.size(); ++i) {
        const char c = address[i];
        if (c == ':') return i > 0;
        const bool ok = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                        (i > 0 && ((c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'));
        if (!ok) return false;
    }
    return false;
}

// "a/b/../c/./d" -> "a/c/d", keeping a leading slash.
std::string NormalizePath(std::string_view path) {
    std::string out;
    std::size_t i = 0;
    std::vector<std::string> parts;
    while (i <= path.size()) {
        const std::size_t j = std::min(path.find('/', i), path.size());
        const std::string_view part = path.substr(i, j - i);
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
        } else if (part != "." && !part.empty()) {
            parts.emplace_back(part);
        }
        i = j + 1;
    }
    for (const auto& p : parts)
        out += "/" + p;
    if (!path.empty() && path.back() == '/') out += "/";
    return out.empty() ? "/" : out;
}

} // namespace

void AppendEscapedText(std::string& out, std::u32string_view text) {
    for (char32_t c : text)
        AppendEscaped(out, c, false);
}

void AppendEscapedAttribute(std::string& out, std::u32string_view text) {
    for (char32_t c : text)
        AppendEscaped(out, c, true);
}

void AppendEscapedText(std::string& out, std::string_view utf8) {
    for (char c : utf8) {
        if (c == '&')
            out += "&amp;";
        else if (c == '<')
            out += "&lt;";
        else if (c == '>')
            out += "&gt;";
        else if (c == '"')
            out += "&quot;";
        else
            out += c;
    }
}

std::string EscapeUtf8(std::string_view utf8) {
    std::string out;
    AppendEscapedText(out, utf8);
    return out;
}

std::string ResolveAddress(const PageBase& base, std::string_view address) {
    std::string_view a = address;
    while (!a.empty() && (a.front() == ' ' || a.front() == '\n' || a.front() == '\t'))
        a.remove_prefix(1);
    if (a.empty() || a.front() == '#' || HasScheme(a)) return std::string(address);
    if (!base.url.empty()) {
        const std::size_t scheme = base.url.find("://");
        if (scheme == std::string::npos) return std::string(address);
        const std::size_t hostEnd = base.url.find('/', scheme + 3);
        const std::string origin = base.url.substr(0, hostEnd);
        if (a.starts_with("//")) return base.url.substr(0, scheme + 1) + std::string(a);
        std::string path = hostEnd == std::string::npos ? "/" : base.url.substr(hostEnd);
        path = path.substr(0, path.find_first_of("?#"));
        std::string suffix;
        const std::size_t query = a.find_first_of("?#");
        if (query != std::string_view::npos) {
            suffix = std::string(a.substr(query));
            a = a.substr(0, query);
        }
        const std::string joined = a.starts_with("/")
                                       ? std::string(a)
                                       : path.substr(0, path.rfind('/') + 1) + std::string(a);
        return origin + NormalizePath(joined) + suffix;
    }
    if (!base.folder.empty()) {
        if (a.starts_with("//")) return "http:" + std::string(a);
        std::string suffix;
        const std::size_t query = a.find_first_of("?#");
        if (query != std::string_view::npos) {
            suffix = std::string(a.substr(query));
            a = a.substr(0, query);
        }
        const std::string joined =
            a.starts_with("/") ? std::string(a) : base.folder + "/" + std::string(a);
        return "file://" + NormalizePath(joined) + suffix;
    }
    return std::string(address);
}

bool IsScriptAddress(std::u32string_view address) {
    std::string lower;
    for (char32_t c : address) {
        if (c <= U' ' || c == U'\t') continue; // browsers skip these inside a scheme
        if (lower.size() >= 11) break;
        lower += static_cast<char>(c < 128 ? std::tolower(static_cast<int>(c)) : '?');
    }
    return lower.starts_with("javascript:") || lower.starts_with("vbscript:");
}

} // namespace orvane::report
