#pragma once
// The red runs of the detail pane, from the marks of a line pair (true: common).
#include <string>
#include <vector>

namespace orvane {

struct WordRun {
    long Start = 0;  // position in the shown text, from 0
    long Length = 0; // characters
};

// Longest stretches of characters whose marks are false.
std::vector<WordRun> CharacterRuns(const std::vector<bool>& marks);

// The words joined by one blank each, and a run per differing word that takes in the blank ahead
// of it, so that neighbouring changed words show as one red stretch. Lengths count characters of
// the UTF-32 words.
std::vector<WordRun> WordRuns(const std::vector<std::u32string>& words,
                              const std::vector<bool>& marks, std::u32string& shown);

} // namespace orvane
