#pragma once
// Helpers of the line differ's tests: a reader of the normal format that checks what a hunk list
// claims, and texts that repeat lines a lot.
#include "Options.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace linediff_test {

std::string ReadFile(const std::string& path);

// Lines that start with "< " or "> ".
long ChangedLines(std::string_view normalOutput);

// Checks a normal-format output against the two texts: hunks in order, line numbers in range,
// shown lines equal to the files' lines, every line outside the hunks equal to its counterpart
// under `options`. Returns an empty string when all holds, else what failed.
std::string CheckHunks(std::string_view a, std::string_view b, std::string_view output,
                       const linediff::Options& options);

// Texts made of few distinct lines, so that lines repeat a lot: lines of `alphabet`, each text
// `0..maxLines` long, the second an edited copy of the first or unrelated to it.
struct TextPair {
    std::string a, b;
};
TextPair RandomPair(std::mt19937_64& rng, const std::vector<std::string>& alphabet,
                    std::size_t maxLines);

} // namespace linediff_test
