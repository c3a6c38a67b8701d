#pragma once
// Helpers of the line differ's tests: scratch files, child processes, and a reader of the
// normal format that checks what a hunk list claims.
#include "Options.h"

#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace linediff_test {

class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;
    const std::string& Path() const { return path_; }
    // Writes `content` to a file of the folder and returns its path.
    std::string Write(const std::string& name, std::string_view content) const;

  private:
    std::string path_;
};

std::string ReadFile(const std::string& path);

struct ProcessResult {
    int status = -1; // exit status, -1 if it did not run or end normally
    std::string out, err;
};
ProcessResult RunProcess(const std::vector<std::string>& argv, const TempDir& scratch);

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
