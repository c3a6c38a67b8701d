#pragma once
// The three switches of a comparison. Engines take them as a value, never from a global.

namespace linediff {

struct Options {
    bool ignoreCase = false;       // ASCII letters compare without regard to case
    bool ignoreWhiteSpace = false; // all blanks, tabs, CRs, VTs and FFs are left out of a line
    bool forceText = false;        // never answer "Binary files ... differ"
};

} // namespace linediff
