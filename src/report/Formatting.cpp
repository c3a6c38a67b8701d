#include "report/Formatting.h"

#include "intake/html/Tags.h"
#include "intake/html/Utf8.h"
#include "report/Atoms.h"

#include <algorithm>

namespace orvane::report {

using html::Tag;

namespace {

std::string Describe(const html::Node& e) {
    const auto attr = [&](std::u32string_view name) {
        const auto* v = e.Attribute(name);
        return v ? html::EncodeUtf8(*v) : std::string();
    };
    std::string style = attr(U"style").empty() ? "" : "; Style " + attr(U"style");
    if (!e.IsHtml()) return {};
    switch (e.tag) {
    case Tag::B:
    case Tag::Strong:
        return "Bold";
    case Tag::I:
    case Tag::Em:
        return "Italic";
    case Tag::U:
        return "Underline";
    case Tag::S:
    case Tag::Strike:
        return "Strike-through";
    case Tag::Sub:
        return "Subscript";
    case Tag::Sup:
        return "Superscript";
    case Tag::Big:
        return "Big";
    case Tag::Small:
        return "Small";
    case Tag::Code:
    case Tag::Tt:
        return "Monospace";
    case Tag::Font:
        return "Font" + (attr(U"face").empty() ? "" : " " + attr(U"face")) +
               (attr(U"size").empty() ? "" : " size " + attr(U"size")) +
               (attr(U"color").empty() ? "" : " " + attr(U"color"));
    case Tag::A:
        return e.Attribute(U"href") ? "Link to " + attr(U"href") : std::string();
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
        return "Heading " + std::string(html::TagName(e.tag)).substr(1);
    default:
        break;
    }
    return style.empty() ? std::string() : style.substr(2);
}

} // namespace

const std::vector<std::string>& FormattingCache::Of(const html::Node* node) {
    auto [it, fresh] = cache_.try_emplace(node);
    if (!fresh) return it->second;
    std::vector<std::string> chain;
    for (const html::Node* p = node->kind == html::NodeKind::Text ? node->parent : node; p;
         p = p->parent) {
        if (p->kind != html::NodeKind::Element || p->Is(Tag::Body)) break;
        std::string d = Describe(*p);
        if (!d.empty()) chain.push_back(std::move(d));
        // Above the nearest block only the heading level still counts; a block's own style
        // is the block's, not the word's.
        if (IsBlock(*p)) break;
    }
    std::sort(chain.begin(), chain.end());
    chain.erase(std::unique(chain.begin(), chain.end()), chain.end());
    it->second = std::move(chain);
    return it->second;
}

std::string DescribeChange(const std::vector<std::string>& before,
                           const std::vector<std::string>& after) {
    std::string out;
    const auto add = [&](const std::string& what, const char* how) {
        if (!out.empty()) out += "; ";
        out += what + how;
    };
    for (const auto& d : after)
        if (!std::binary_search(before.begin(), before.end(), d)) add(d, " added");
    for (const auto& d : before)
        if (!std::binary_search(after.begin(), after.end(), d)) add(d, " removed");
    return out;
}

} // namespace orvane::report
