#pragma once
// Gives every line a small integer, its equivalence class: two lines share a class exactly when
// they are equal under the switches, so the core compares integers only.
#include "LineTable.h"

#include <cstdint>

namespace linediff {

struct ClassIds {
    BigVector<std::uint32_t> a; // class of each Original line
    BigVector<std::uint32_t> b; // class of each Revised line
    std::uint32_t count = 0;    // classes are 0 .. count - 1
};

ClassIds AssignClasses(const LineTable& a, const LineTable& b, const Options& options);

} // namespace linediff
