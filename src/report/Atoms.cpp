#include "report/Atoms.h"

#include "intake/html/Tags.h"

namespace orvane::report {

using html::Node;
using html::NodeKind;
using html::Tag;

namespace {

bool IsSpace(char32_t c) {
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r' || c == U'\f' || c == 0xA0 ||
           c == 0x200B || c == 0x3000;
}

// Ideographs carry no spaces between words: each is an atom of its own.
bool IsIdeograph(char32_t c) {
    return (c >= 0x2E80 && c <= 0x9FFF) || (c >= 0xF900 && c <= 0xFAFF) ||
           (c >= 0xFF00 && c <= 0xFFEF) || (c >= 0x20000 && c <= 0x2FFFF);
}

bool IsPunctuation(char32_t c) {
    return (c < 0x80 && !((c >= U'0' && c <= U'9') || (c >= U'a' && c <= U'z') ||
                          (c >= U'A' && c <= U'Z') || c == U'_')) ||
           (c >= 0x2000 && c <= 0x206F) || IsIdeograph(c);
}

char32_t Fold(char32_t c) {
    if ((c >= U'A' && c <= U'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return c + 32;
    return c;
}

class Flattener {
  public:
    Flattener(const ReportOptions& options, AtomList& list) : options_(options), list_(list) {}

    void Walk(const Node* node, const Node* block) {
        if (node->kind == NodeKind::Text) {
            Text(node, block);
            return;
        }
        if (node->kind != NodeKind::Element) return;
        switch (RoleOf(*node)) {
        case Role::Dropped:
            return;
        case Role::Image:
            Single(node, block, AtomKind::Image, ImageKey(*node));
            return;
        case Role::Replaced:
        case Role::Placeholder:
            Single(node, block, AtomKind::Replaced, ElementKey(*node));
            return;
        case Role::Normal:
            break;
        }
        const auto first = static_cast<std::uint32_t>(list_.atoms.size());
        if (IsBlock(*node)) {
            block = node;
            Atom a{AtomKind::Boundary, node, node, 0, 0, U"\x01"};
            a.key += node->name;
            list_.atoms.push_back(std::move(a));
        }
        for (const Node* c = node->firstChild; c; c = c->next)
            Walk(c, block);
        list_.range[node] = {first, static_cast<std::uint32_t>(list_.atoms.size())};
    }

  private:
    void Single(const Node* node, const Node* block, AtomKind kind, std::u32string key) {
        const auto at = static_cast<std::uint32_t>(list_.atoms.size());
        list_.atoms.push_back({kind, node, block, 0, 0, std::move(key)});
        list_.range[node] = {at, at + 1};
    }

    std::u32string ImageKey(const Node& img) const {
        std::u32string key = U"\x02";
        if (const auto* src = img.Attribute(U"src"))
            for (char32_t c : *src)
                key += Fold(c);
        return key;
    }

    void Text(const Node* node, const Node* block) {
        const std::u32string& s = node->data;
        const auto first = static_cast<std::uint32_t>(list_.atoms.size());
        std::size_t i = 0;
        while (i < s.size()) {
            if (IsSpace(s[i])) {
                ++i;
                continue;
            }
            std::size_t j = i + 1;
            if (!IsPunctuation(s[i]))
                while (j < s.size() && !IsSpace(s[j]) && !IsPunctuation(s[j]))
                    ++j;
            Atom a{AtomKind::Word,
                   node,
                   block,
                   static_cast<std::uint32_t>(i),
                   static_cast<std::uint32_t>(j),
                   {}};
            a.key.reserve(j - i);
            for (std::size_t k = i; k < j; ++k)
                a.key += options_.ignoreCase ? Fold(s[k]) : s[k];
            list_.atoms.push_back(std::move(a));
            i = j;
        }
        list_.range[node] = {first, static_cast<std::uint32_t>(list_.atoms.size())};
    }

    const ReportOptions& options_;
    AtomList& list_;
};

void AppendKey(std::u32string& out, const Node& n) {
    if (n.kind == NodeKind::Text) {
        out += n.data;
        return;
    }
    if (n.kind != NodeKind::Element || RoleOf(n) == Role::Dropped) return;
    out += U'<';
    out += n.name;
    for (const auto& a : n.attributes) {
        if (a.name.starts_with(U"on")) continue;
        out += U' ';
        out += a.name;
        out += U'=';
        out += a.value;
    }
    out += U'>';
    for (const Node* c = n.firstChild; c; c = c->next)
        AppendKey(out, *c);
    out += U"</>";
}

} // namespace

Role RoleOf(const Node& e) {
    if (e.ns != html::Namespace::Html) return e.tag == Tag::Script ? Role::Dropped : Role::Normal;
    switch (e.tag) {
    case Tag::Script:
    case Tag::Template:
    case Tag::Base:
    case Tag::Meta:
    case Tag::Link:
    case Tag::Title:
    case Tag::Head:
    case Tag::Noembed:
    case Tag::Noframes:
    case Tag::Param:
    case Tag::Style:
        return Role::Dropped;
    case Tag::Iframe:
    case Tag::Object:
    case Tag::Embed:
    case Tag::Applet:
    case Tag::Frame:
        return Role::Placeholder;
    case Tag::Svg:
    case Tag::Math:
    case Tag::Select:
    case Tag::Textarea:
        return Role::Replaced;
    case Tag::Img:
    case Tag::Image:
        return Role::Image;
    default:
        break;
    }
    if (e.name == U"video" || e.name == U"audio" || e.name == U"canvas" || e.name == U"picture")
        return Role::Replaced;
    return Role::Normal;
}

bool IsBlock(const Node& e) {
    if (!e.IsHtml()) return false;
    switch (e.tag) {
    case Tag::Address:
    case Tag::Article:
    case Tag::Aside:
    case Tag::Blockquote:
    case Tag::Body:
    case Tag::Caption:
    case Tag::Center:
    case Tag::Dd:
    case Tag::Details:
    case Tag::Dialog:
    case Tag::Dir:
    case Tag::Div:
    case Tag::Dl:
    case Tag::Dt:
    case Tag::Fieldset:
    case Tag::Figcaption:
    case Tag::Figure:
    case Tag::Footer:
    case Tag::Form:
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
    case Tag::Header:
    case Tag::Hgroup:
    case Tag::Hr:
    case Tag::Li:
    case Tag::Listing:
    case Tag::Main:
    case Tag::Menu:
    case Tag::Nav:
    case Tag::Ol:
    case Tag::P:
    case Tag::Pre:
    case Tag::Section:
    case Tag::Summary:
    case Tag::Table:
    case Tag::Tbody:
    case Tag::Thead:
    case Tag::Tfoot:
    case Tag::Tr:
    case Tag::Td:
    case Tag::Th:
    case Tag::Ul:
    case Tag::Xmp:
    case Tag::Plaintext:
    case Tag::Html:
    case Tag::Search:
        return true;
    default:
        return false;
    }
}

const Node* FindBody(const html::Document& doc) {
    const Node* htmlEl = nullptr;
    for (const Node* c = doc.Root()->firstChild; c; c = c->next)
        if (c->Is(Tag::Html)) htmlEl = c;
    if (!htmlEl) return doc.Root();
    for (const Node* c = htmlEl->firstChild; c; c = c->next)
        if (c->Is(Tag::Body) || c->Is(Tag::Frameset)) return c;
    return htmlEl;
}

std::u32string ElementKey(const Node& element) {
    std::u32string key = U"\x03";
    AppendKey(key, element);
    return key;
}

AtomList Flatten(const html::Document& doc, const ReportOptions& options) {
    AtomList list;
    list.body = FindBody(doc);
    Flattener(options, list).Walk(list.body, list.body);
    return list;
}

} // namespace orvane::report
