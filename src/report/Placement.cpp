#include "report/Placement.h"

namespace orvane::report {

using html::Node;

namespace {

constexpr std::int64_t kNone = -1;

class Placer {
  public:
    Placer(const AtomList& a, const AtomList& b, const AtomAlignment& al)
        : a_(a), b_(b), al_(al), prevEq_(a.atoms.size(), kNone),
          nextEq_(a.atoms.size() + 1, kNone) {
        std::int64_t last = kNone;
        for (std::size_t k = 0; k < a.atoms.size(); ++k) {
            prevEq_[k] = last;
            if (IsEqualContent(k)) last = std::int64_t(k);
        }
        last = kNone;
        for (std::size_t k = a.atoms.size(); k-- > 0;) {
            nextEq_[k + 1] = last;
            if (IsEqualContent(k)) last = std::int64_t(k);
        }
        nextEq_[0] = last;
    }

    Placement Run() {
        std::size_t k = 0;
        const std::size_t n = a_.atoms.size();
        while (k < n) {
            if (al_.matchA[k] != kNoMatch || a_.atoms[k].kind == AtomKind::Boundary ||
                k < copiedUntil_) {
                ++k;
                continue;
            }
            // A group: removed content atoms of one block, with nothing equal between them.
            const Node* block = a_.atoms[k].block;
            std::size_t end = k + 1;
            while (end < n &&
                   (al_.matchA[end] == kNoMatch || a_.atoms[end].kind == AtomKind::Boundary) &&
                   !(IsEqualContent(end)) &&
                   (a_.atoms[end].kind == AtomKind::Boundary || a_.atoms[end].block == block))
                ++end;
            while (end > k + 1 && a_.atoms[end - 1].kind == AtomKind::Boundary)
                --end;
            Group(k, end, block);
            k = std::max(end, copiedUntil_);
        }
        return std::move(out_);
    }

  private:
    bool IsEqualContent(std::size_t k) const {
        return al_.matchA[k] != kNoMatch && a_.atoms[k].kind != AtomKind::Boundary;
    }
    std::pair<std::uint32_t, std::uint32_t> RangeA(const Node* n) const { return a_.range.at(n); }
    bool HasEqual(const Node* n) const {
        const auto [f, e] = RangeA(n);
        return al_.equalBeforeA[e] > al_.equalBeforeA[f];
    }
    bool Inside(std::int64_t atom, const Node* n) const {
        const auto [f, e] = RangeA(n);
        return atom >= std::int64_t(f) && atom < std::int64_t(e);
    }

    void Group(std::size_t first, std::size_t end, const Node* block) {
        if (!HasEqual(block) && block != a_.body) {
            const Node* whole = block;
            while (whole->parent && whole->parent != a_.body && a_.range.count(whole->parent) &&
                   !HasEqual(whole->parent))
                whole = whole->parent;
            if (PlaceWhole(whole)) {
                copiedUntil_ = RangeA(whole).second;
                return;
            }
        }
        Inline({static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(end), nullptr},
               block);
    }

    void Inline(const Piece& piece, const Node* block) {
        const std::int64_t e = prevEq_[piece.first];
        const std::int64_t f = nextEq_[piece.end];
        const auto sameBlock = [&](std::int64_t k) {
            return k != kNone && a_.atoms[k].block == block;
        };
        // Beside an equal word of the same block; else beside the Revised element that stands
        // where the nested block with the neighbour stood, so nothing lands in another block.
        // Once a removed block waits after the Revised element holding e, later pieces go after
        // it too, or they would come out ahead of it.
        if (e != kNone && wholeAfter_.count(al_.matchA[e])) {
            if (f != kNone) return Attach(out_.beforeAtom[std::uint32_t(al_.matchA[f])], piece);
            return Attach(out_.afterNode[wholeAfter_[al_.matchA[e]]], piece);
        }
        if (sameBlock(e)) return Attach(out_.afterAtom[std::uint32_t(al_.matchA[e])], piece);
        if (sameBlock(f)) return Attach(out_.beforeAtom[std::uint32_t(al_.matchA[f])], piece);
        if (f != kNone && Inside(f, block))
            if (const Node* s = Sibling(al_.matchA[f], block, true))
                return Attach(out_.beforeNode[s], piece);
        if (e != kNone && Inside(e, block))
            if (const Node* s = Sibling(al_.matchA[e], block, false))
                return Attach(out_.afterNode[s], piece);
        if (f != kNone) return Attach(out_.beforeAtom[std::uint32_t(al_.matchA[f])], piece);
        if (e != kNone) return Attach(out_.afterAtom[std::uint32_t(al_.matchA[e])], piece);
        Attach(out_.atEnd, piece);
    }

    static void Attach(std::vector<Piece>& where, const Piece& piece) { where.push_back(piece); }

    // The Revised node holding `atom` whose parent is the counterpart of `parentA`, and that
    // holds no equal content on the wrong side of `atom`.
    const Node* Sibling(std::int64_t atomB, const Node* parentA, bool before) const {
        for (const Node* s = b_.atoms[atomB].node; s && s != b_.body; s = s->parent) {
            const Node* p = s->parent;
            if (!p || p->kind != html::NodeKind::Element || p->name != parentA->name) continue;
            const auto it = b_.range.find(s);
            if (it == b_.range.end()) continue;
            const auto [f, e] = it->second;
            const bool clean = before ? al_.equalBeforeB[f] == al_.equalBeforeB[atomB]
                                      : al_.equalBeforeB[e] == al_.equalBeforeB[atomB + 1];
            if (clean) return s;
        }
        return nullptr;
    }

    bool PlaceWhole(const Node* whole) {
        const Node* parent = whole->parent;
        if (!parent || !a_.range.count(parent)) return false;
        const auto [first, end] = RangeA(whole);
        const std::int64_t f = nextEq_[end];
        if (f != kNone && Inside(f, parent)) {
            const std::int64_t bf = al_.matchA[f];
            // Pieces of the same gap already waiting inside, before f, must stay ahead of this
            // one: it then goes inline as well.
            if (out_.beforeAtom.count(std::uint32_t(bf))) return false;
            const Node* s = wholeBefore_.count(bf) ? wholeBefore_[bf] : Sibling(bf, parent, true);
            if (s) {
                wholeBefore_[bf] = s;
                out_.beforeNode[s].push_back({first, end, whole});
                return true;
            }
        }
        const std::int64_t e = first > 0 ? prevEq_[first] : kNone;
        if (e != kNone && Inside(e, parent)) {
            const std::int64_t be = al_.matchA[e];
            const Node* s = wholeAfter_.count(be) ? wholeAfter_[be] : Sibling(be, parent, false);
            if (s) {
                wholeAfter_[be] = s;
                out_.afterNode[s].push_back({first, end, whole});
                return true;
            }
        }
        return false;
    }

    const AtomList& a_;
    const AtomList& b_;
    const AtomAlignment& al_;
    std::vector<std::int64_t> prevEq_; // nearest equal content atom before each atom
    std::vector<std::int64_t> nextEq_; // nearest at or after each index (index n: none)
    std::size_t copiedUntil_ = 0;
    // Revised atom -> the element that removed blocks of its gap are written before or after.
    std::unordered_map<std::int64_t, const Node*> wholeBefore_, wholeAfter_;
    Placement out_;
};

} // namespace

Placement PlaceDeletions(const AtomList& a, const AtomList& b, const AtomAlignment& al) {
    return Placer(a, b, al).Run();
}

} // namespace orvane::report
