#pragma once
// The one entry point of the LCS core for any element type (characters, words, tokens): the
// elements become dense symbol ids and the exact bit-parallel walk gives the textbook marks.
#include "compare/lcs/ExactLcs.h"
#include "compare/lcs/Marks.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

namespace orvane::lcs {

// Sizes the marks to a and b and sets those of one longest common subsequence: the one the
// textbook table walk of LcsTable.h picks. Returns its length.
template <class T, class Hash = std::hash<T>>
std::size_t LcsMarks(std::span<const T> a, std::span<const T> b, Marks& marksA, Marks& marksB,
                     const ExactLcsOptions& options = {}) {
    std::unordered_map<T, std::uint32_t, Hash> ids;
    std::vector<std::uint32_t> symbolsA(a.size()), symbolsB(b.size());
    for (std::size_t i = 0; i < a.size(); ++i)
        symbolsA[i] = ids.try_emplace(a[i], static_cast<std::uint32_t>(ids.size())).first->second;
    const auto alphabet = static_cast<std::uint32_t>(ids.size());
    for (std::size_t j = 0; j < b.size(); ++j) {
        const auto it = ids.find(b[j]);
        symbolsB[j] = it == ids.end() ? alphabet : it->second;
    }
    marksA.assign(a.size(), false);
    marksB.assign(b.size(), false);
    return ExactLcsMarks(symbolsA, symbolsB, alphabet, marksA, marksB, options);
}

} // namespace orvane::lcs
