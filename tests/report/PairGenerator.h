#pragma once
// Random page pairs for the report's property tests: a page of paragraphs, headings, lists,
// tables and images, and a copy edited the ways real pages change (words, formatting, links,
// rows, cells, list items, whole blocks, images). Deterministic for a seed.
#include <cstdint>
#include <string>
#include <utility>

namespace orvane::test {

std::pair<std::string, std::string> GeneratePair(std::uint32_t seed, int edits);

// A real page with words of its text removed and added at random, markup left alone.
std::string EditPageText(const std::string& page, std::uint32_t seed, int edits);

} // namespace orvane::test
