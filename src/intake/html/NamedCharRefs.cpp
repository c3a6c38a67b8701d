#include "intake/html/NamedCharRefs.h"

#include <algorithm>
#include <iterator>

namespace html {
namespace {

constexpr NamedCharRef kRefs[] = {
#include "intake/html/NamedCharRefTable.inc"
};

using Iter = const NamedCharRef*;

// Narrows [lo, hi), whose names all share a prefix of length k, to those with `c` at k.
void Narrow(Iter& lo, Iter& hi, std::size_t k, char c) {
    lo =
        std::lower_bound(lo, hi, c, [k](const NamedCharRef& r, char ch) { return r.name[k] < ch; });
    hi =
        std::upper_bound(lo, hi, c, [k](char ch, const NamedCharRef& r) { return ch < r.name[k]; });
}

} // namespace

const NamedCharRef* MatchNamedCharRef(std::u32string_view text) {
    Iter lo = std::begin(kRefs);
    Iter hi = std::end(kRefs);
    const NamedCharRef* best = nullptr;
    for (std::size_t k = 0; lo != hi; ++k) {
        // Sorted by bytes, a name equal to the prefix comes before the names that extend it.
        if (lo->name.size() == k) best = lo++;
        if (lo == hi || k == text.size() || text[k] > 0x7F) break;
        Narrow(lo, hi, k, static_cast<char>(text[k]));
    }
    return best;
}

std::size_t NamedCharRefCount() {
    return std::size(kRefs);
}

} // namespace html
