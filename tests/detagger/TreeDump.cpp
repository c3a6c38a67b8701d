#include "TreeDump.h"

#include "intake/html/Utf8.h"

#include <algorithm>
#include <vector>

namespace orvane::test {
namespace {

using html::Node;
using html::NodeKind;

void Line(std::string& out, int depth, const std::string& text) {
    out += "| ";
    out.append(static_cast<std::size_t>(depth) * 2, ' ');
    out += text;
    out += '\n';
}

std::string U8(std::u32string_view s) {
    return html::EncodeUtf8(s);
}

std::string AttributeName(const html::NodeAttribute& a) {
    switch (a.ns) {
    case html::AttributeNamespace::XLink:
        return "xlink " + U8(a.name);
    case html::AttributeNamespace::Xml:
        return "xml " + U8(a.name);
    case html::AttributeNamespace::Xmlns:
        return "xmlns " + U8(a.name);
    default:
        return U8(a.name);
    }
}

std::string ElementName(const Node* n) {
    switch (n->ns) {
    case html::Namespace::Svg:
        return "svg " + U8(n->name);
    case html::Namespace::MathMl:
        return "math " + U8(n->name);
    default:
        return U8(n->name);
    }
}

void DumpChildren(std::string& out, const Node* parent, int depth);

void DumpElement(std::string& out, const Node* n, int depth) {
    Line(out, depth, "<" + ElementName(n) + ">");
    std::vector<std::string> attrs;
    for (const html::NodeAttribute& a : n->attributes)
        attrs.push_back(AttributeName(a) + "=\"" + U8(a.value) + "\"");
    std::sort(attrs.begin(), attrs.end());
    for (const std::string& a : attrs)
        Line(out, depth + 1, a);
    if (n->content) {
        Line(out, depth + 1, "content");
        DumpChildren(out, n->content, depth + 2);
    }
    DumpChildren(out, n, depth + 1);
}

void DumpNode(std::string& out, const Node* n, int depth) {
    switch (n->kind) {
    case NodeKind::Element:
        return DumpElement(out, n, depth);
    case NodeKind::Text:
        return Line(out, depth, "\"" + U8(n->data) + "\"");
    case NodeKind::Comment:
        return Line(out, depth, "<!-- " + U8(n->data) + " -->");
    case NodeKind::DocumentType:
        if (!n->hasIdentifiers) return Line(out, depth, "<!DOCTYPE " + U8(n->name) + ">");
        return Line(out, depth,
                    "<!DOCTYPE " + U8(n->name) + " \"" + U8(n->data) + "\" \"" + U8(n->systemId) +
                        "\">");
    case NodeKind::Document:
        return DumpChildren(out, n, depth);
    }
}

void DumpChildren(std::string& out, const Node* parent, int depth) {
    for (const Node* c = parent->firstChild; c; c = c->next)
        DumpNode(out, c, depth);
}

} // namespace

std::string DumpTree(const Node* root) {
    std::string out;
    DumpChildren(out, root, 0);
    return out;
}

} // namespace orvane::test
