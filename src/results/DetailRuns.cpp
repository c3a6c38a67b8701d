#include "results/DetailRuns.h"

namespace orvane {

std::vector<WordRun> CharacterRuns(const std::vector<bool>& marks) {
    std::vector<WordRun> runs;
    const long n = static_cast<long>(marks.size());
    for (long i = 0; i < n;) {
        if (marks[static_cast<std::size_t>(i)]) {
            ++i;
            continue;
        }
        long end = i;
        while (end < n && !marks[static_cast<std::size_t>(end)])
            ++end;
        runs.push_back({i, end - i});
        i = end;
    }
    return runs;
}

std::vector<WordRun> WordRuns(const std::vector<std::u32string>& words,
                              const std::vector<bool>& marks, std::u32string& shown) {
    std::vector<WordRun> runs;
    shown.clear();
    for (std::size_t w = 0; w < words.size(); ++w) {
        const bool differs = w < marks.size() && !marks[w];
        const long length = static_cast<long>(words[w].size());
        if (shown.empty()) {
            if (differs) runs.push_back({0, length});
            shown = words[w];
        } else {
            if (differs) runs.push_back({static_cast<long>(shown.size()), length + 1});
            shown += U' ';
            shown += words[w];
        }
    }
    return runs;
}

} // namespace orvane
