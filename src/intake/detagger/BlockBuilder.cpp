// From the parsed tree to blocks of text: what is shown, where blocks begin and end, how white
// space collapses, and the markers of lists.
#include "intake/detagger/TextBlocks.h"

#include <string_view>

namespace detagger {
namespace {

using html::Node;
using html::Tag;

constexpr int kListIndent = 4; // columns per list or quotation level
constexpr int kHrWidth = 40;   // a rule is drawn this wide, whatever the page width

enum class Role { Hidden, Inline, Block, Paragraph, ListContainer, ListItem, Pre, Row, Cell };

Role RoleOf(const Node* n) {
    if (n->ns != html::Namespace::Html) {
        return n->name == U"script" || n->name == U"style" ? Role::Hidden : Role::Inline;
    }
    switch (n->tag) {
    case Tag::Head:
    case Tag::Script:
    case Tag::Style:
    case Tag::Template:
    case Tag::Title:
    case Tag::Select:
    case Tag::Iframe:
    case Tag::Noembed:
    case Tag::Noframes:
    case Tag::Param:
        return Role::Hidden;
    default:
        break;
    }
    switch (n->tag) {
    case Tag::P:
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
    case Tag::Blockquote:
    case Tag::Table:
    case Tag::Figure:
    case Tag::Fieldset:
    case Tag::Address:
    case Tag::Hr:
        return Role::Paragraph;
    case Tag::Pre:
    case Tag::Listing:
    case Tag::Xmp:
    case Tag::Plaintext:
    case Tag::Textarea:
        return Role::Pre;
    case Tag::Ul:
    case Tag::Ol:
    case Tag::Dl:
    case Tag::Dir:
    case Tag::Menu:
        return Role::ListContainer;
    case Tag::Li:
    case Tag::Dd:
    case Tag::Dt:
        return Role::ListItem;
    case Tag::Tr:
        return Role::Row;
    case Tag::Td:
    case Tag::Th:
        return Role::Cell;
    case Tag::Article:
    case Tag::Aside:
    case Tag::Body:
    case Tag::Caption:
    case Tag::Center:
    case Tag::Details:
    case Tag::Dialog:
    case Tag::Div:
    case Tag::Figcaption:
    case Tag::Footer:
    case Tag::Form:
    case Tag::Frameset:
    case Tag::Header:
    case Tag::Hgroup:
    case Tag::Html:
    case Tag::Main:
    case Tag::Nav:
    case Tag::Noscript:
    case Tag::Search:
    case Tag::Section:
    case Tag::Summary:
    case Tag::Tbody:
    case Tag::Tfoot:
    case Tag::Thead:
    case Tag::Option:
        return Role::Block;
    default:
        return n->name == U"legend" ? Role::Block : Role::Inline;
    }
}

bool IsSpace(char32_t c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}

struct ListLevel {
    bool ordered = false;
    long next = 1;
};

class BlockBuilder {
  public:
    explicit BlockBuilder(const LayoutOptions& options) : options_(options) {}

    Layout Build(const Node* root) {
        Children(root);
        Flush();
        return std::move(layout_);
    }

  private:
    void Children(const Node* n) {
        for (const Node* c = n->firstChild; c; c = c->next)
            Visit(c);
    }

    void Visit(const Node* n) {
        if (n->kind == html::NodeKind::Text) return Text(n->data);
        if (n->kind != html::NodeKind::Element) return;
        switch (RoleOf(n)) {
        case Role::Hidden:
            return;
        case Role::Inline:
            return Inline(n);
        case Role::Block:
            return Around(n, false);
        case Role::Paragraph:
            return Paragraph(n);
        case Role::Pre:
            return Pre(n);
        case Role::ListContainer:
            return List(n);
        case Role::ListItem:
            return Item(n);
        case Role::Row:
            return Around(n, false);
        case Role::Cell:
            pending_ = ' ';
            return Children(n);
        }
    }

    void Inline(const Node* n) {
        if (n->Is(Tag::Br)) return Break();
        if (n->Is(Tag::Img) || n->Is(Tag::Area)) {
            if (const std::u32string* alt = n->Attribute(U"alt")) Text(*alt);
            return;
        }
        Children(n);
        if (n->Is(Tag::A)) Link(n);
    }

    void Link(const Node* a) {
        const std::u32string* href = a->Attribute(U"href");
        if (!href || href->empty() || href->starts_with(U"#")) return;
        if (options_.displayLinkUrls) Text(U" <" + *href + U">");
        if (options_.numberLinks) {
            layout_.references.push_back(*href);
            Word(U"[" + Number(layout_.references.size()) + U"]");
        }
    }

    void Paragraph(const Node* n) {
        const int indent = n->Is(Tag::Blockquote) ? kListIndent : 0;
        Open(true);
        indent_ += indent;
        if (n->Is(Tag::Hr)) Word(std::u32string(kHrWidth, U'-'));
        Children(n);
        Close(true);
        indent_ -= indent;
    }

    void Around(const Node* n, bool blank) {
        Open(blank);
        Children(n);
        Close(blank);
    }

    void Pre(const Node* n) {
        Open(true);
        ++pre_;
        current_.preformatted = true;
        Children(n);
        --pre_;
        Close(true);
    }

    void List(const Node* n) {
        const bool nested = !lists_.empty();
        ListLevel level;
        level.ordered = n->Is(Tag::Ol);
        if (const std::u32string* start = n->Attribute(U"start"); start && level.ordered)
            level.next = ParseNumber(*start, 1);
        Open(!nested);
        if (nested) indent_ += kListIndent;
        lists_.push_back(level);
        Children(n);
        lists_.pop_back();
        if (nested) indent_ -= kListIndent;
        Close(!nested);
    }

    void Item(const Node* n) {
        Open(false);
        std::u32string marker;
        int extra = 0;
        if (n->Is(Tag::Li)) {
            ListLevel* level = lists_.empty() ? nullptr : &lists_.back();
            marker = level && level->ordered ? Number(level->next++) + U". " : U"* ";
        } else if (n->Is(Tag::Dd)) {
            extra = kListIndent;
        }
        indent_ += extra;
        current_.prefix = marker;
        current_.indent = indent_;
        Children(n);
        Close(false);
        indent_ -= extra;
    }

    void Text(std::u32string_view text) {
        if (pre_ > 0) {
            for (char32_t c : text)
                current_.text.push_back(c == '\n' ? kHardBreak : c);
            return;
        }
        for (char32_t c : text) {
            if (IsSpace(c)) {
                if (pending_ != kSoftBreak) pending_ = c == '\n' ? kSoftBreak : U' ';
                continue;
            }
            if (pending_ && !current_.text.empty() && current_.text.back() != kHardBreak)
                current_.text.push_back(pending_);
            pending_ = 0;
            current_.text.push_back(c);
        }
    }

    // Text that must stay one word, whatever white space it holds.
    void Word(std::u32string_view word) {
        if (pending_ && !current_.text.empty() && current_.text.back() != kHardBreak)
            current_.text.push_back(pending_);
        pending_ = 0;
        current_.text.append(word);
    }

    void Break() {
        if (!current_.text.empty()) current_.text.push_back(kHardBreak);
        pending_ = 0;
    }

    void Open(bool blank) {
        Flush();
        if (blank) blank_ = true;
    }

    void Close(bool blank) {
        Flush();
        if (blank) blank_ = true;
    }

    void Flush() {
        while (!current_.text.empty() && current_.text.back() == kHardBreak)
            current_.text.pop_back();
        if (!current_.text.empty()) {
            current_.blankBefore = blank_ && !layout_.blocks.empty();
            if (current_.prefix.empty()) current_.indent = indent_;
            layout_.blocks.push_back(std::move(current_));
            blank_ = false;
        }
        const bool pre = pre_ > 0;
        current_ = TextBlock{};
        current_.preformatted = pre;
        current_.indent = indent_;
        pending_ = 0;
    }

    static std::u32string Number(std::size_t n) {
        const std::string digits = std::to_string(n);
        return std::u32string(digits.begin(), digits.end());
    }

    static long ParseNumber(std::u32string_view text, long fallback) {
        long n = 0;
        bool any = false;
        for (char32_t c : text) {
            if (c < '0' || c > '9' || n > 1000000) break;
            n = n * 10 + static_cast<long>(c - '0');
            any = true;
        }
        return any ? n : fallback;
    }

    const LayoutOptions& options_;
    Layout layout_;
    TextBlock current_;
    char32_t pending_ = 0; // white space waiting for the next visible character
    bool blank_ = false;   // a blank line is due before the next block
    int indent_ = 0;
    int pre_ = 0;
    std::vector<ListLevel> lists_;
};

} // namespace

Layout LayOutBlocks(const html::Node* root, const LayoutOptions& options) {
    return BlockBuilder(options).Build(root);
}

} // namespace detagger
