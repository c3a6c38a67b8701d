#pragma once
// Where each removed run of the Original goes in the Revised tree: inline beside the equal atom
// of its own block, or, for blocks removed whole, as a copy of the block beside the Revised
// element that stands where it stood. Never across a block boundary, and never as a direct child
// of a table, row or list: a removed row is written as a row, a removed item as an item.
#include "report/Alignment.h"
#include "report/Atoms.h"

#include <unordered_map>
#include <vector>

namespace orvane::report {

struct Piece {
    std::uint32_t first = 0, end = 0; // Original atoms, for an inline piece
    const html::Node* copy = nullptr; // an Original element removed whole
};

struct Placement {
    std::unordered_map<std::uint32_t, std::vector<Piece>> beforeAtom, afterAtom; // Revised atoms
    std::unordered_map<const html::Node*, std::vector<Piece>> beforeNode, afterNode;
    std::vector<Piece> atEnd;
};

Placement PlaceDeletions(const AtomList& a, const AtomList& b, const AtomAlignment& al);

} // namespace orvane::report
