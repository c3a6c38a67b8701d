#pragma once
// Slides runs of changed lines along equal lines without changing how many lines change: runs
// that can be merged are merged, and a run is placed opposite a change of the other file where
// it can be (a change then reads as one "c" hunk), else as low as it goes.
#include "BigBuffer.h"

#include <cstdint>

namespace linediff {

// `ids`: classes of this file's lines; `changed`: its flags (adjusted); `otherChanged`: the
// other file's flags, read only.
void ShiftBoundaries(const BigVector<std::uint32_t>& ids, BigVector<std::uint8_t>& changed,
                     const BigVector<std::uint8_t>& otherChanged);

} // namespace linediff
