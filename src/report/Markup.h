#pragma once
// Writing HTML text: escaping, and addresses made absolute against where a page came from.
#include <string>
#include <string_view>

namespace orvane::report {

void AppendEscapedText(std::string& out, std::u32string_view text);
void AppendEscapedAttribute(std::string& out, std::u32string_view text);
void AppendEscapedText(std::string& out, std::string_view utf8);
std::string EscapeUtf8(std::string_view utf8);

// Where a page came from: a web address, or the folder of a local file (then addresses become
// file: addresses). Empty: addresses are left as they are.
struct PageBase {
    std::string url;    // http(s)://host/path/page.html
    std::string folder; // /abs/folder (no trailing slash)
};

// A relative address made absolute; absolute ones, fragments and data: addresses unchanged.
std::string ResolveAddress(const PageBase& base, std::string_view address);

// Addresses that would run code when followed.
bool IsScriptAddress(std::u32string_view address);

} // namespace orvane::report
