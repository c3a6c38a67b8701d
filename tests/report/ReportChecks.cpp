#include "report/ReportChecks.h"

#include "intake/html/Tags.h"
#include "intake/html/TreeBuilder.h"
#include "intake/html/Utf8.h"

#include <vector>

namespace orvane::test {

using html::Node;
using html::NodeKind;
using html::Tag;

namespace {

bool HasClass(const Node& n, std::u32string_view cls) {
    const auto* c = n.Attribute(U"class");
    return c && c->find(cls) != std::u32string::npos;
}

bool Hidden(const Node& n) {
    if (n.ns != html::Namespace::Html) return n.name == U"script" || n.name == U"style";
    switch (n.tag) {
    case Tag::Script:
    case Tag::Style:
    case Tag::Template:
    case Tag::Head:
    case Tag::Title:
    case Tag::Noembed:
    case Tag::Noframes:
    case Tag::Iframe:
    case Tag::Object:
    case Tag::Embed:
    case Tag::Applet:
    case Tag::Frame:
        return true;
    default:
        return false;
    }
}

bool IsSpace(char32_t c) {
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r' || c == U'\f' || c == 0xA0 ||
           c == 0x200B || c == 0x3000;
}

void Collect(const Node& n, Drop drop, std::u32string& out) {
    if (n.kind == NodeKind::Text) {
        for (char32_t c : n.data)
            if (!IsSpace(c)) out += c;
        return;
    }
    if (n.kind == NodeKind::Element) {
        if (Hidden(n) || HasClass(n, U"orvane-chrome")) return;
        if (n.IsHtml() && drop == Drop::Inserted && n.name == U"ins") return;
        if (n.IsHtml() && drop == Drop::Deleted && n.name == U"del") return;
    } else if (n.kind != NodeKind::Document) {
        return;
    }
    for (const Node* c = n.firstChild; c; c = c->next)
        Collect(*c, drop, out);
}

void Walk(const Node& n, std::vector<const Node*>& all) {
    all.push_back(&n);
    for (const Node* c = n.firstChild; c; c = c->next)
        Walk(*c, all);
}

bool IsMark(const Node& n) {
    return n.IsHtml() && (n.name == U"ins" || n.name == U"del");
}

bool ForbiddenParent(const Node& p) {
    return p.Is(Tag::Table) || p.Is(Tag::Tbody) || p.Is(Tag::Thead) || p.Is(Tag::Tfoot) ||
           p.Is(Tag::Tr) || p.Is(Tag::Ul) || p.Is(Tag::Ol) || p.Is(Tag::Dl) || p.Is(Tag::Select);
}

bool IsBlockTag(const Node& n) {
    return n.Is(Tag::P) || n.Is(Tag::Div) || n.Is(Tag::Li) || n.Is(Tag::Tr) || n.Is(Tag::Td) ||
           n.Is(Tag::Table) || n.Is(Tag::Ul) || n.Is(Tag::Ol) || n.Is(Tag::H1) || n.Is(Tag::H2);
}

} // namespace

std::u32string VisibleText(const std::string& page, Drop drop) {
    const html::Document doc = html::ParseDocument(html::DecodeUtf8(page));
    std::u32string out;
    Collect(*doc.Root(), drop, out);
    return out;
}

int CountOf(const std::string& text, const std::string& what) {
    int n = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++n;
    return n;
}

std::string WithoutNavigation(std::string report) {
    const std::string open = "<span class=\"orvane-chrome orvane-nav\"";
    for (auto at = report.find(open); at != std::string::npos; at = report.find(open, at))
        report.erase(at, report.find("</span>", at) + 7 - at);
    std::erase(report, '\n');
    return report;
}

std::string StructureFault(const std::string& report) {
    const html::Document doc = html::ParseDocument(html::DecodeUtf8(report));
    std::vector<const Node*> all;
    Walk(*doc.Root(), all);
    int marks = 0;
    for (const Node* n : all) {
        if (n->kind != NodeKind::Element) continue;
        if (n->Is(Tag::Script)) return "a script element";
        for (const auto& a : n->attributes)
            if (a.name.starts_with(U"on")) return "an event handler " + html::EncodeUtf8(a.name);
        if (n->Is(Tag::Meta) && n->Attribute(U"http-equiv")) return "a meta http-equiv";
        if (!IsMark(*n)) continue;
        ++marks;
        if (n->parent && ForbiddenParent(*n->parent))
            return "a mark directly in " + html::EncodeUtf8(n->parent->name);
        std::vector<const Node*> inside;
        Walk(*n, inside);
        for (const Node* d : inside)
            if (d != n && IsBlockTag(*d)) return "a mark holding " + html::EncodeUtf8(d->name);
    }
    const int written = CountOf(report, "<ins>") + CountOf(report, "<del>");
    if (written != marks)
        return std::to_string(written) + " marks written, " + std::to_string(marks) + " parsed";
    return {};
}

} // namespace orvane::test
