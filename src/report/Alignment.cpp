#include "report/Alignment.h"

#include "report/SequenceDiff.h"

namespace orvane::report {

namespace {

// Islands of at most this many equal atoms between two replacements are merged into them.
constexpr std::size_t kIsland = 2;

void Pair(AtomAlignment& al, const Alignment& raw) {
    std::size_t i = 0, j = 0;
    const std::size_t na = raw.changedA.size(), nb = raw.changedB.size();
    while (i < na || j < nb) {
        if (i < na && raw.changedA[i])
            ++i;
        else if (j < nb && raw.changedB[j])
            ++j;
        else {
            al.matchA[i] = static_cast<std::int64_t>(j);
            al.matchB[j] = static_cast<std::int64_t>(i);
            ++i, ++j;
        }
    }
}

// Changed atoms of one side just before (step -1) or just after (step +1) an index.
std::size_t ChangedRun(const std::vector<std::int64_t>& match, std::int64_t at, int step) {
    std::size_t n = 0;
    for (std::int64_t k = at;
         k >= 0 && k < static_cast<std::int64_t>(match.size()) && match[k] == kNoMatch; k += step)
        ++n;
    return n;
}

void MergeIslands(const AtomList& a, AtomAlignment& al) {
    std::size_t i = 0;
    const std::size_t na = al.matchA.size();
    while (i < na) {
        if (al.matchA[i] == kNoMatch) {
            ++i;
            continue;
        }
        // An equal run: consecutive on both sides.
        std::size_t end = i + 1;
        while (end < na && al.matchA[end] == al.matchA[end - 1] + 1)
            ++end;
        const std::size_t len = end - i;
        bool boundary = false;
        for (std::size_t k = i; k < end; ++k)
            boundary |= a.atoms[k].kind == AtomKind::Boundary;
        const auto jb = al.matchA[i], je = al.matchA[end - 1];
        const std::size_t need = 2 * len;
        if (len <= kIsland && !boundary && ChangedRun(al.matchA, std::int64_t(i) - 1, -1) >= need &&
            ChangedRun(al.matchB, jb - 1, -1) >= need &&
            ChangedRun(al.matchA, std::int64_t(end), 1) >= need &&
            ChangedRun(al.matchB, je + 1, 1) >= need) {
            for (std::size_t k = i; k < end; ++k) {
                al.matchB[al.matchA[k]] = kNoMatch;
                al.matchA[k] = kNoMatch;
            }
        }
        i = end;
    }
}

std::vector<std::uint32_t> EqualBefore(const AtomList& list,
                                       const std::vector<std::int64_t>& match) {
    std::vector<std::uint32_t> out(match.size() + 1, 0);
    for (std::size_t k = 0; k < match.size(); ++k)
        out[k + 1] = out[k] + (match[k] != kNoMatch && list.atoms[k].kind != AtomKind::Boundary);
    return out;
}

} // namespace

AtomAlignment AlignAtoms(const AtomList& a, const AtomList& b) {
    KeyTable keys;
    std::vector<std::uint32_t> ida, idb;
    ida.reserve(a.atoms.size());
    idb.reserve(b.atoms.size());
    for (const auto& x : a.atoms)
        ida.push_back(keys.Id(x.key));
    for (const auto& x : b.atoms)
        idb.push_back(keys.Id(x.key));
    const Alignment raw = AlignSequences(ida, idb, keys.Count());

    AtomAlignment al;
    al.matchA.assign(a.atoms.size(), kNoMatch);
    al.matchB.assign(b.atoms.size(), kNoMatch);
    Pair(al, raw);
    for (std::size_t k = 0; k < a.atoms.size(); ++k)
        al.minimalChangedWords += al.matchA[k] == kNoMatch && a.atoms[k].kind == AtomKind::Word;
    for (std::size_t k = 0; k < b.atoms.size(); ++k)
        al.minimalChangedWords += al.matchB[k] == kNoMatch && b.atoms[k].kind == AtomKind::Word;
    MergeIslands(a, al);
    al.equalBeforeA = EqualBefore(a, al.matchA);
    al.equalBeforeB = EqualBefore(b, al.matchB);
    return al;
}

} // namespace orvane::report
