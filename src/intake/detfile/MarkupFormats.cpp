#include "intake/detfile/MarkupFormats.h"

#include "intake/html/Decoder.h"
#include "intake/html/Tokenizer.h"

#include <algorithm>
#include <array>

namespace orvane::detfile {
namespace {

// Enough for the licence comments some pages begin with; the tokenizer works in linear time.
constexpr std::size_t kScanChars = 16 * 1024;

constexpr std::string_view kSvgNamespace = "http://www.w3.org/2000/svg";

constexpr auto kHtmlElements = std::to_array<std::string_view>({
    "a",          "abbr",     "acronym",  "address",    "applet",   "area",     "article",
    "aside",      "audio",    "b",        "base",       "basefont", "bdi",      "bdo",
    "bgsound",    "big",      "blink",    "blockquote", "body",     "br",       "button",
    "canvas",     "caption",  "center",   "cite",       "code",     "col",      "colgroup",
    "data",       "datalist", "dd",       "del",        "details",  "dfn",      "dialog",
    "dir",        "div",      "dl",       "dt",         "em",       "embed",    "fieldset",
    "figcaption", "figure",   "font",     "footer",     "form",     "frame",    "frameset",
    "h1",         "h2",       "h3",       "h4",         "h5",       "h6",       "head",
    "header",     "hgroup",   "hr",       "html",       "i",        "iframe",   "image",
    "img",        "input",    "ins",      "isindex",    "kbd",      "keygen",   "label",
    "legend",     "li",       "link",     "listing",    "main",     "map",      "mark",
    "marquee",    "math",     "menu",     "menuitem",   "meta",     "meter",    "multicol",
    "nav",        "nextid",   "nobr",     "noembed",    "noframes", "noscript", "object",
    "ol",         "optgroup", "option",   "output",     "p",        "param",    "picture",
    "plaintext",  "pre",      "progress", "q",          "rb",       "rp",       "rt",
    "rtc",        "ruby",     "s",        "samp",       "script",   "search",   "section",
    "select",     "slot",     "small",    "source",     "spacer",   "span",     "strike",
    "strong",     "style",    "sub",      "summary",    "sup",      "svg",      "table",
    "tbody",      "td",       "template", "textarea",   "tfoot",    "th",       "thead",
    "time",       "title",    "tr",       "track",      "tt",       "u",        "ul",
    "var",        "video",    "wbr",      "xmp",
});
static_assert(std::ranges::is_sorted(kHtmlElements), "binary search needs the list sorted");

// The tokenizer gives names in lower case; a name beyond ASCII matches no element.
std::string Ascii(std::u32string_view s) {
    std::string out;
    for (char32_t c : s)
        out += c < 0x80 ? static_cast<char>(c) : '\x7F';
    return out;
}

bool IsCustomElementName(std::string_view n) {
    if (n.empty() || n[0] < 'a' || n[0] > 'z' || n.find('-') == std::string_view::npos)
        return false;
    return std::ranges::all_of(n, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
               c == '_' || c == '\x7F';
    });
}

bool IsWhitespace(std::u32string_view s) {
    return std::ranges::all_of(
        s, [](char32_t c) { return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r'; });
}

bool IsXmlDeclaration(const html::Token& comment) {
    const std::string data = Ascii(std::u32string_view(comment.data).substr(0, 4));
    return data.size() == 4 && data[0] == '?' &&
           std::ranges::equal(data.substr(1), std::string_view("xml"),
                              [](char a, char b) { return (a | 0x20) == b; });
}

bool HasAttribute(const html::Token& tag, std::string_view name, std::string_view value) {
    return std::ranges::any_of(tag.attributes, [&](const html::Attribute& a) {
        return Ascii(a.name) == name && Ascii(a.value) == value;
    });
}

std::optional<FormatName> ByDoctype(const html::Token& doctype, bool xmlProlog) {
    const std::string name = Ascii(doctype.name);
    const bool xhtmlId =
        doctype.publicId && Ascii(*doctype.publicId).find("XHTML") != std::string::npos;
    if (name == "html") return xmlProlog || xhtmlId ? names::Xhtml : names::Html;
    if (name == "svg") return names::Svg;
    return std::nullopt;
}

std::optional<FormatName> ByRootElement(const html::Token& tag, bool xmlProlog) {
    const std::string name = Ascii(tag.name);
    if (xmlProlog) {
        if (name == "html") return names::Xhtml;
        return name == "svg" ? names::Svg : names::Xml;
    }
    if (name == "svg" && HasAttribute(tag, "xmlns", kSvgNamespace)) return names::Svg;
    if (IsHtmlElementName(name)) return names::Html;
    return std::nullopt;
}

// What the first markup after white space and comments says.
std::optional<FormatName> ByFirstMarkup(std::u32string_view text) {
    html::Tokenizer tokenizer(text);
    html::Token t;
    bool xmlProlog = false;
    while (tokenizer.Next(t)) {
        switch (t.kind) {
        case html::TokenKind::Character:
            if (!IsWhitespace(t.data)) return std::nullopt;
            break;
        case html::TokenKind::Comment:
            xmlProlog |= IsXmlDeclaration(t);
            break;
        case html::TokenKind::Doctype:
            if (const auto byDoctype = ByDoctype(t, xmlProlog)) return byDoctype;
            if (!xmlProlog) return std::nullopt;
            break; // an XML document type: the root element decides
        case html::TokenKind::StartTag:
            return ByRootElement(t, xmlProlog);
        default:
            return std::nullopt;
        }
    }
    return std::nullopt;
}

// Server code a template may begin with: "<?php ... ?>", "<% ... %>" and white space. A browser
// reads the first as a comment that ends at the first '>', which code may hold too early.
std::u32string_view SkipServerBlocks(std::u32string_view text) {
    for (;;) {
        const std::size_t start = text.find_first_not_of(U" \t\n\f\r");
        if (start == std::u32string_view::npos) return {};
        text.remove_prefix(start);
        const std::u32string_view close = text.starts_with(U"<?")   ? U"?>"
                                          : text.starts_with(U"<%") ? U"%>"
                                                                    : U"";
        if (close.empty()) return text;
        const std::size_t end = text.find(close, 2);
        if (end == std::u32string_view::npos) return {};
        text.remove_prefix(end + close.size());
    }
}

} // namespace

bool IsHtmlElementName(std::string_view name) {
    return std::ranges::binary_search(kHtmlElements, name) || IsCustomElementName(name);
}

std::optional<FormatName> ClassifyMarkup(std::string_view head) {
    const html::DecodedDocument doc = html::DecodeDocument(head);
    const std::u32string_view text = std::u32string_view(doc.text).substr(0, kScanChars);
    if (const auto byFirst = ByFirstMarkup(text)) return byFirst;
    const std::u32string_view afterCode = SkipServerBlocks(text);
    if (afterCode.size() == text.size()) return std::nullopt;
    const auto page = ByFirstMarkup(afterCode);
    return page == names::Html || page == names::Xhtml ? page : std::nullopt;
}

} // namespace orvane::detfile
