#include "report/Visual.h"

#include "intake/html/Tags.h"
#include "intake/html/Utf8.h"
#include "report/Alignment.h"
#include "report/Atoms.h"
#include "report/CleanMarkup.h"
#include "report/Formatting.h"
#include "report/Placement.h"

namespace orvane::report {

using html::Node;
using html::NodeKind;
using html::Tag;

namespace {

bool IsSpace(char32_t c) {
    return c == U' ' || c == U'\t' || c == U'\n' || c == U'\r' || c == U'\f';
}

class Merger {
  public:
    Merger(const VisualPage& a, const VisualPage& b, const ReportOptions& options, PageWriter& w)
        : pa_(a), pb_(b), options_(options), w_(w), out_(w.Out()),
          atomsA_(Flatten(*a.doc, options)), atomsB_(Flatten(*b.doc, options)),
          al_(AlignAtoms(atomsA_, atomsB_)), place_(PlaceDeletions(atomsA_, atomsB_, al_)) {}

    void Write() {
        const Node* body = atomsB_.body;
        if (body->Is(Tag::Body) && body->parent && body->parent->Is(Tag::Html))
            w_.SetRootAttributes(Attributes(*body->parent), Attributes(*body));
        if (body->kind == NodeKind::Element && !body->Is(Tag::Body) && !body->Is(Tag::Html)) {
            EmitNode(body);
        } else {
            for (const Node* c = body->firstChild; c; c = c->next)
                EmitNode(c);
        }
        for (const auto& p : place_.atEnd)
            EmitPiece(p);
    }

  private:
    std::string Attributes(const Node& n) const {
        std::string tag;
        AppendStartTag(tag, n, pb_.base);
        const std::size_t from = tag.find_first_of(" >");
        return tag.substr(from, tag.size() - 1 - from);
    }

    void EmitPieces(const std::unordered_map<const Node*, std::vector<Piece>>& map, const Node* n) {
        if (const auto it = map.find(n); it != map.end())
            for (const auto& p : it->second)
                EmitPiece(p);
    }
    void EmitPieces(const std::unordered_map<std::uint32_t, std::vector<Piece>>& map,
                    std::uint32_t j) {
        if (const auto it = map.find(j); it != map.end())
            for (const auto& p : it->second)
                EmitPiece(p);
    }

    void EmitNode(const Node* n) {
        EmitPieces(place_.beforeNode, n);
        if (n->kind == NodeKind::Text) {
            EmitText(n);
        } else if (n->kind == NodeKind::Element) {
            EmitElement(n);
        }
        EmitPieces(place_.afterNode, n);
    }

    void EmitElement(const Node* n) {
        switch (RoleOf(*n)) {
        case Role::Dropped:
            if (n->Is(Tag::Style)) AppendSubtree(out_, *n, pb_.base); // keeps the page's look
            return;
        case Role::Placeholder:
        case Role::Replaced:
        case Role::Image:
            EmitAtomElement(n);
            return;
        case Role::Normal:
            break;
        }
        AppendStartTag(out_, *n, pb_.base);
        if (IsVoid(*n)) return;
        links_ += n->Is(Tag::A);
        for (const Node* c = n->firstChild; c; c = c->next)
            EmitNode(c);
        links_ -= n->Is(Tag::A);
        AppendEndTag(out_, *n);
    }

    void WriteAtomElement(const Node& n, const PageBase& base) {
        if (RoleOf(n) == Role::Placeholder)
            AppendPlaceholder(out_, n, base);
        else
            AppendSubtree(out_, n, base);
    }

    void EmitAtomElement(const Node* n) {
        const std::uint32_t j = atomsB_.range.at(n).first;
        EmitPieces(place_.beforeAtom, j);
        if (al_.matchB[j] == kNoMatch) {
            w_.Open(Mark::Inserted, {}, links_ == 0);
            WriteAtomElement(*n, pb_.base);
            w_.Close(Mark::Inserted);
        } else {
            w_.Equal();
            WriteAtomElement(*n, pb_.base);
        }
        EmitPieces(place_.afterAtom, j);
    }

    void EmitText(const Node* n) {
        const auto [first, end] = atomsB_.range.at(n);
        const std::u32string& s = n->data;
        std::size_t at = 0;
        bool inserting = false;
        const auto stopInserting = [&] {
            if (inserting) w_.Close(Mark::Inserted);
            inserting = false;
        };
        for (std::uint32_t j = first; j < end; ++j) {
            const Atom& atom = atomsB_.atoms[j];
            const std::u32string_view gap(s.data() + at, atom.begin - at);
            const std::u32string_view word(s.data() + atom.begin, atom.end - atom.begin);
            at = atom.end;
            const bool before = place_.beforeAtom.count(j) > 0;
            if (al_.matchB[j] == kNoMatch && !before && inserting) {
                AppendEscapedText(out_, gap);
                AppendEscapedText(out_, word);
                continue;
            }
            stopInserting();
            AppendEscapedText(out_, gap);
            EmitPieces(place_.beforeAtom, j);
            if (al_.matchB[j] == kNoMatch) {
                w_.Open(Mark::Inserted, {}, links_ == 0);
                inserting = true;
                AppendEscapedText(out_, word);
            } else {
                EmitEqualWord(j, word);
            }
            if (place_.afterAtom.count(j)) {
                stopInserting();
                EmitPieces(place_.afterAtom, j);
            }
        }
        stopInserting();
        AppendEscapedText(out_, std::u32string_view(s).substr(at));
    }

    void EmitEqualWord(std::uint32_t j, std::u32string_view word) {
        std::string change;
        if (!options_.ignoreFormatting) {
            const Atom& a = atomsA_.atoms[std::size_t(al_.matchB[j])];
            change = DescribeChange(fmtA_.Of(a.node), fmtB_.Of(atomsB_.atoms[j].node));
        }
        if (change.empty()) {
            w_.Equal();
            AppendEscapedText(out_, word);
            return;
        }
        w_.Open(Mark::Changed, change, links_ == 0);
        AppendEscapedText(out_, word);
        w_.Close(Mark::Changed);
    }

    // A removed run of the Original: its words inline in one `del`, or a whole element copied.
    void EmitPiece(const Piece& p) {
        if (p.copy) {
            EmitCopy(p.copy);
            return;
        }
        const auto& atoms = atomsA_.atoms;
        const Atom* prev = nullptr;
        bool open = false;
        for (std::uint32_t k = p.first; k < p.end; ++k) {
            const Atom& atom = atoms[k];
            if (atom.kind == AtomKind::Boundary) continue;
            if (!open) {
                if (SpaceBefore(atom)) out_ += ' ';
                w_.Open(Mark::Deleted, {}, links_ == 0);
                open = true;
            } else if (SpaceBefore(atom) || (prev && prev->node != atom.node)) {
                out_ += ' ';
            }
            if (atom.kind == AtomKind::Word)
                AppendEscapedText(
                    out_,
                    std::u32string_view(atom.node->data).substr(atom.begin, atom.end - atom.begin));
            else
                WriteAtomElement(*atom.node, pa_.base);
            prev = &atom;
        }
        if (!open) return;
        w_.Close(Mark::Deleted);
        if (prev && prev->kind == AtomKind::Word && prev->end < prev->node->data.size() &&
            IsSpace(prev->node->data[prev->end]))
            out_ += ' ';
    }

    static bool SpaceBefore(const Atom& atom) {
        return atom.kind == AtomKind::Word && atom.begin > 0 &&
               IsSpace(atom.node->data[atom.begin - 1]);
    }

    void EmitCopy(const Node* n) {
        if (n->kind == NodeKind::Text) {
            bool visible = false;
            for (char32_t c : n->data)
                visible |= !IsSpace(c);
            if (!visible) {
                AppendEscapedText(out_, n->data);
                return;
            }
            w_.Open(Mark::Deleted, {}, links_ == 0);
            AppendEscapedText(out_, n->data);
            w_.Close(Mark::Deleted);
            return;
        }
        if (n->kind != NodeKind::Element) return;
        switch (RoleOf(*n)) {
        case Role::Dropped:
            return;
        case Role::Placeholder:
        case Role::Replaced:
        case Role::Image:
            w_.Open(Mark::Deleted, {}, links_ == 0);
            WriteAtomElement(*n, pa_.base);
            w_.Close(Mark::Deleted);
            return;
        case Role::Normal:
            break;
        }
        AppendStartTag(out_, *n, pa_.base);
        if (IsVoid(*n)) return;
        links_ += n->Is(Tag::A);
        for (const Node* c = n->firstChild; c; c = c->next)
            EmitCopy(c);
        links_ -= n->Is(Tag::A);
        AppendEndTag(out_, *n);
    }

    const VisualPage& pa_;
    const VisualPage& pb_;
    const ReportOptions& options_;
    PageWriter& w_;
    std::string& out_;
    AtomList atomsA_, atomsB_;
    AtomAlignment al_;
    Placement place_;
    FormattingCache fmtA_, fmtB_;
    int links_ = 0; // open links around what is written now
};

std::string KeptHead(const VisualPage& page) {
    std::string head;
    const Node* htmlEl = nullptr;
    for (const Node* c = page.doc->Root()->firstChild; c; c = c->next)
        if (c->Is(Tag::Html)) htmlEl = c;
    if (!htmlEl) return head;
    for (const Node* h = htmlEl->firstChild; h; h = h->next) {
        if (!h->Is(Tag::Head)) continue;
        for (const Node* c = h->firstChild; c; c = c->next) {
            if (c->Is(Tag::Style)) {
                AppendSubtree(head, *c, page.base);
                head += '\n';
            } else if (c->Is(Tag::Link)) {
                const auto* rel = c->Attribute(U"rel");
                std::string r = rel ? html::EncodeUtf8(*rel) : "";
                for (char& ch : r)
                    ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
                if (r.find("stylesheet") == std::string::npos ||
                    r.find("alternate") != std::string::npos)
                    continue;
                AppendSubtree(head, *c, page.base);
                head += '\n';
            }
        }
    }
    return head;
}

} // namespace

std::string WriteVisual(const VisualPage& original, const VisualPage& revised,
                        const ReportOptions& options, PageWriter& writer) {
    Merger(original, revised, options, writer).Write();
    return KeptHead(revised);
}

} // namespace orvane::report
