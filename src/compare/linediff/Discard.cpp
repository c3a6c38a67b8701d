#include "Discard.h"

namespace linediff {
namespace {

constexpr std::uint8_t kInA = 1, kInB = 2;

void Keep(const BigVector<std::uint32_t>& ids, const BigVector<std::uint8_t>& seen,
          std::uint8_t needed, BigVector<std::uint8_t>& changed, BigVector<std::uint32_t>& kept,
          BigVector<std::uint32_t>& lineOf) {
    kept.reserve(ids.size());
    lineOf.reserve(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (seen[ids[i]] & needed) {
            kept.push_back(ids[i]);
            lineOf.push_back(static_cast<std::uint32_t>(i));
        } else {
            changed[i] = 1;
        }
    }
}

} // namespace

ReducedSequences DiscardUnmatched(const ClassIds& ids, BigVector<std::uint8_t>& changedA,
                                  BigVector<std::uint8_t>& changedB) {
    BigVector<std::uint8_t> seen(ids.count, 0);
    for (std::uint32_t c : ids.a)
        seen[c] |= kInA;
    for (std::uint32_t c : ids.b)
        seen[c] |= kInB;
    ReducedSequences r;
    Keep(ids.a, seen, kInB, changedA, r.a, r.lineA);
    Keep(ids.b, seen, kInA, changedB, r.b, r.lineB);
    return r;
}

} // namespace linediff
