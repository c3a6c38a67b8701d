#include "report/CleanMarkup.h"

#include "intake/html/Tags.h"
#include "intake/html/Utf8.h"
#include "report/Atoms.h"

namespace orvane::report {

using html::Node;
using html::NodeKind;
using html::Tag;

namespace {

bool IsAddressAttribute(std::u32string_view name) {
    return name == U"href" || name == U"src" || name == U"action" || name == U"poster" ||
           name == U"background" || name == U"cite" || name == U"data" || name == U"formaction";
}

bool IsOwnMark(const Node& e) {
    return e.IsHtml() && (e.name == U"ins" || e.name == U"del");
}

void AppendName(std::string& out, const Node& e) {
    if (IsOwnMark(e))
        out += "span";
    else
        out += html::EncodeUtf8(e.name);
}

} // namespace

bool IsVoid(const Node& e) {
    if (!e.IsHtml()) return false;
    switch (e.tag) {
    case Tag::Area:
    case Tag::Base:
    case Tag::Br:
    case Tag::Col:
    case Tag::Embed:
    case Tag::Hr:
    case Tag::Img:
    case Tag::Input:
    case Tag::Link:
    case Tag::Meta:
    case Tag::Source:
    case Tag::Track:
    case Tag::Wbr:
    case Tag::Param:
    case Tag::Keygen:
    case Tag::Basefont:
    case Tag::Bgsound:
    case Tag::Frame:
        return true;
    default:
        return false;
    }
}

bool IsRawText(const Node& e) {
    return e.Is(Tag::Style);
}

void AppendStartTag(std::string& out, const Node& e, const PageBase& base) {
    out += '<';
    AppendName(out, e);
    bool hadClass = false;
    for (const auto& a : e.attributes) {
        if (a.name.size() > 2 && (a.name[0] == U'o' || a.name[0] == U'O') &&
            (a.name[1] == U'n' || a.name[1] == U'N'))
            continue; // event handlers never run in a report
        const bool address = IsAddressAttribute(a.name) || a.name == U"srcset";
        if (address && IsScriptAddress(a.value)) continue;
        if (a.name == U"http-equiv" || a.name == U"autofocus") continue;
        out += ' ';
        if (a.ns == html::AttributeNamespace::XLink) out += "xlink:";
        out += html::EncodeUtf8(a.name);
        out += "=\"";
        if (a.name == U"class" && IsOwnMark(e)) {
            hadClass = true;
            out += "orvane-page-" + html::EncodeUtf8(e.name) + " ";
        }
        if (IsAddressAttribute(a.name))
            AppendEscapedText(out, ResolveAddress(base, html::EncodeUtf8(a.value)));
        else
            AppendEscapedAttribute(out, a.value);
        out += '"';
    }
    if (IsOwnMark(e) && !hadClass) out += " class=\"orvane-page-" + html::EncodeUtf8(e.name) + "\"";
    if (!e.IsHtml() && !e.firstChild) out += '/';
    out += '>';
}

void AppendEndTag(std::string& out, const Node& e) {
    if (IsVoid(e) || (!e.IsHtml() && !e.firstChild)) return;
    out += "</";
    AppendName(out, e);
    out += '>';
}

void AppendSubtree(std::string& out, const Node& n, const PageBase& base) {
    if (n.kind == NodeKind::Text) {
        AppendEscapedText(out, n.data);
        return;
    }
    if (n.kind != NodeKind::Element) return;
    if (n.Is(Tag::Script) || (!n.IsHtml() && n.name == U"script")) return;
    AppendStartTag(out, n, base);
    if (IsRawText(n)) {
        for (const Node* c = n.firstChild; c; c = c->next)
            if (c->kind == NodeKind::Text) out += html::EncodeUtf8(c->data);
    } else {
        for (const Node* c = n.firstChild; c; c = c->next)
            AppendSubtree(out, *c, base);
    }
    AppendEndTag(out, n);
}

void AppendPlaceholder(std::string& out, const Node& e, const PageBase& base) {
    out += "<span class=\"orvane-chrome orvane-placeholder\">[";
    out += html::EncodeUtf8(e.name);
    const auto* src = e.Attribute(U"src");
    if (!src) src = e.Attribute(U"data");
    if (src && !IsScriptAddress(*src)) {
        out += ": ";
        AppendEscapedText(out, ResolveAddress(base, html::EncodeUtf8(*src)));
    }
    out += "]</span>";
}

} // namespace orvane::report
