#pragma once
// A page's visible content as a flat list of atoms that remember where they stand in the tree:
// words and single punctuation marks (positions in a text node), images keyed by their address,
// replaced elements (svg, math, select, ...) keyed by their content, and one boundary at the
// start of each block, row and cell so that an alignment keeps blocks apart.
#include "intake/html/Dom.h"
#include "report/ReportTypes.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::report {

enum class AtomKind : std::uint8_t { Word, Image, Replaced, Boundary };

struct Atom {
    AtomKind kind = AtomKind::Word;
    const html::Node* node = nullptr;  // the text node, or the element
    const html::Node* block = nullptr; // nearest block ancestor (the body at worst)
    std::uint32_t begin = 0, end = 0;  // a word's range in its text node
    std::u32string key;
};

// How an element takes part in the report.
enum class Role : std::uint8_t {
    Normal,
    Dropped,     // scripts and the like: left out of the report entirely
    Placeholder, // embedded frames and objects: shown as a box naming them
    Replaced,    // one atom for the whole element
    Image,
};

Role RoleOf(const html::Node& element);
bool IsBlock(const html::Node& element);

struct AtomList {
    std::vector<Atom> atoms;
    // Element -> [first, end) of the atoms inside it; text node or atom element -> first atom.
    std::unordered_map<const html::Node*, std::pair<std::uint32_t, std::uint32_t>> range;
    const html::Node* body = nullptr;
};

AtomList Flatten(const html::Document& doc, const ReportOptions& options);

// The body of a document (the html element when there is none).
const html::Node* FindBody(const html::Document& doc);

// An element and its content as HTML, cleaned of scripts and handlers (for replaced atoms).
std::u32string ElementKey(const html::Node& element);

} // namespace orvane::report
