#include "intake/html/Tags.h"

#include <array>
#include <vector>

namespace html {
namespace {

struct Entry {
    std::u32string_view name;
    Tag tag;
};

constexpr std::array kNames = {
#define HTML_TAG_NAME(id, text) std::string_view(text),
    HTML_KNOWN_TAGS(HTML_TAG_NAME)
#undef HTML_TAG_NAME
};

constexpr std::array kEntries = {
#define HTML_TAG_ENTRY(id, text) Entry{U"" text, Tag::id},
    HTML_KNOWN_TAGS(HTML_TAG_ENTRY)
#undef HTML_TAG_ENTRY
};

// Entries grouped by first letter: a lookup compares against a handful of names at most.
const std::array<std::vector<Entry>, 26>& ByInitial() {
    static const auto groups = [] {
        std::array<std::vector<Entry>, 26> g;
        for (const Entry& e : kEntries)
            g[static_cast<std::size_t>(e.name[0] - 'a')].push_back(e);
        return g;
    }();
    return groups;
}

} // namespace

Tag LookupTag(std::u32string_view name) {
    if (name.empty() || name[0] < 'a' || name[0] > 'z') return Tag::Unknown;
    for (const Entry& e : ByInitial()[static_cast<std::size_t>(name[0] - 'a')])
        if (e.name == name) return e.tag;
    return Tag::Unknown;
}

std::u32string_view TagName32(Tag tag) {
    const auto i = static_cast<std::size_t>(tag);
    return i == 0 ? std::u32string_view() : kEntries[i - 1].name;
}

std::string_view TagName(Tag tag) {
    const auto i = static_cast<std::size_t>(tag);
    return i == 0 ? std::string_view() : kNames[i - 1];
}

bool IsSpecialHtml(Tag tag) {
    switch (tag) {
    case Tag::Address:
    case Tag::Applet:
    case Tag::Area:
    case Tag::Article:
    case Tag::Aside:
    case Tag::Base:
    case Tag::Basefont:
    case Tag::Bgsound:
    case Tag::Blockquote:
    case Tag::Body:
    case Tag::Br:
    case Tag::Button:
    case Tag::Caption:
    case Tag::Center:
    case Tag::Col:
    case Tag::Colgroup:
    case Tag::Dd:
    case Tag::Details:
    case Tag::Dialog:
    case Tag::Dir:
    case Tag::Div:
    case Tag::Dl:
    case Tag::Dt:
    case Tag::Embed:
    case Tag::Fieldset:
    case Tag::Figcaption:
    case Tag::Figure:
    case Tag::Footer:
    case Tag::Form:
    case Tag::Frame:
    case Tag::Frameset:
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
    case Tag::Head:
    case Tag::Header:
    case Tag::Hgroup:
    case Tag::Hr:
    case Tag::Html:
    case Tag::Iframe:
    case Tag::Img:
    case Tag::Input:
    case Tag::Keygen:
    case Tag::Li:
    case Tag::Link:
    case Tag::Listing:
    case Tag::Main:
    case Tag::Marquee:
    case Tag::Menu:
    case Tag::Meta:
    case Tag::Nav:
    case Tag::Noembed:
    case Tag::Noframes:
    case Tag::Noscript:
    case Tag::Object:
    case Tag::Ol:
    case Tag::P:
    case Tag::Param:
    case Tag::Plaintext:
    case Tag::Pre:
    case Tag::Script:
    case Tag::Search:
    case Tag::Section:
    case Tag::Select:
    case Tag::Source:
    case Tag::Style:
    case Tag::Summary:
    case Tag::Table:
    case Tag::Tbody:
    case Tag::Td:
    case Tag::Template:
    case Tag::Textarea:
    case Tag::Tfoot:
    case Tag::Th:
    case Tag::Thead:
    case Tag::Title:
    case Tag::Tr:
    case Tag::Track:
    case Tag::Ul:
    case Tag::Wbr:
    case Tag::Xmp:
        return true;
    default:
        return false;
    }
}

bool IsFormatting(Tag tag) {
    switch (tag) {
    case Tag::A:
    case Tag::B:
    case Tag::Big:
    case Tag::Code:
    case Tag::Em:
    case Tag::Font:
    case Tag::I:
    case Tag::Nobr:
    case Tag::S:
    case Tag::Small:
    case Tag::Strike:
    case Tag::Strong:
    case Tag::Tt:
    case Tag::U:
        return true;
    default:
        return false;
    }
}

bool IsHeading(Tag tag) {
    return tag >= Tag::H1 && tag <= Tag::H6;
}

} // namespace html
