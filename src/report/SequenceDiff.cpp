#include "report/SequenceDiff.h"

#include "SequenceCompare.h"

namespace orvane::report {

Alignment AlignSequences(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b,
                         std::uint32_t classCount) {
    linediff::BigVector<std::uint32_t> va(a.begin(), a.end()), vb(b.begin(), b.end());
    linediff::BigVector<std::uint8_t> ca(a.size(), 0), cb(b.size(), 0);
    if (a.empty() || b.empty()) {
        ca.assign(a.size(), 1);
        cb.assign(b.size(), 1);
    } else {
        linediff::CompareSequences(va, vb, classCount, ca, cb);
    }
    Alignment out;
    out.changedA.assign(ca.begin(), ca.end());
    out.changedB.assign(cb.begin(), cb.end());
    return out;
}

} // namespace orvane::report
