#pragma once
// The common head and tail of two lines, found by one scan from each end before the table is
// built: two versions of a line nearly always share long runs at both ends.
#include "compare/lcs/Marks.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace orvane::lcs {

struct FirstLastDiff {
    std::ptrdiff_t FirstA = 0; // first mismatch, the same position on both sides
    std::ptrdiff_t FirstB = 0;
    std::ptrdiff_t LastA = 0; // last element of the middle range, -1 when the tail scan met none
    std::ptrdiff_t LastB = 0;
    bool Finished = false; // one sequence is a prefix of the other: every mark is set
};

namespace detail {

// Tail scan for sequences of different lengths. The test against First stands before the
// comparison, so the element at First on the shorter side stays in the middle range even when
// it would match.
template <class T>
void ScanUnequalTails(std::span<const T> A, std::span<const T> B, Marks& MarksA, Marks& MarksB,
                      FirstLastDiff& r) {
    const std::ptrdiff_t lenA = std::ssize(A), lenB = std::ssize(B), first = r.FirstA;
    for (std::ptrdiff_t k = 0; k < std::min(lenA, lenB); ++k) {
        const std::ptrdiff_t iA = lenA - 1 - k, iB = lenB - 1 - k;
        if (iA <= first) {
            r.LastA = first;
            r.LastB = iB;
            return;
        }
        if (iB <= first) {
            r.LastA = iA;
            r.LastB = first;
            return;
        }
        if (A[iA] != B[iB]) {
            r.LastA = iA;
            r.LastB = iB;
            return;
        }
        MarksA[iA] = true;
        MarksB[iB] = true;
    }
}

} // namespace detail

// Marks the common head and tail of A and B (marks sized to them, all false on entry) and gives
// the middle range that is left for the table.
template <class T>
FirstLastDiff GetLocFirstLastDiff(std::span<const T> A, std::span<const T> B, Marks& MarksA,
                                  Marks& MarksB) {
    FirstLastDiff r;
    const std::ptrdiff_t lenA = std::ssize(A), lenB = std::ssize(B);
    std::ptrdiff_t first = 0;
    for (std::ptrdiff_t i = 0; i < std::max(lenA, lenB); ++i) {
        if (i >= lenA) {
            if (i < lenB) MarksB[i] = false;
            r.Finished = true;
        } else if (i >= lenB) {
            MarksA[i] = false;
            r.Finished = true;
        } else if (A[i] != B[i]) {
            first = i;
            break;
        } else {
            MarksA[i] = true;
            MarksB[i] = true;
        }
    }
    if (r.Finished) return r;
    r.FirstA = r.FirstB = first;
    r.LastA = r.LastB = -1;
    if (lenA == lenB) {
        // No bound at First: the mismatch there stops the scan.
        for (std::ptrdiff_t i = lenA - 1; i >= 0; --i) {
            if (A[i] != B[i]) {
                r.LastA = r.LastB = i;
                break;
            }
            MarksA[i] = true;
            MarksB[i] = true;
        }
    } else {
        detail::ScanUnequalTails(A, B, MarksA, MarksB, r);
    }
    return r;
}

} // namespace orvane::lcs
