#include "results/Navigation.h"

#include "frame/RuntimeError.h"

#include <algorithm>

namespace orvane {
namespace {

// The list is in row order: each command is one binary search.
bool BeforeRow(const DiffItem& item, long row) {
    return item.FirstRow < row;
}

} // namespace

long NextDiffRow(const DiffList& list, long current) {
    const auto it =
        std::upper_bound(list.begin(), list.end(), current,
                         [](long row, const DiffItem& item) { return row < item.FirstRow; });
    return it == list.end() ? kNoMoreDiffs : it->FirstRow;
}

long PreviousDiffRow(const DiffList& list, long current) {
    const auto it = std::lower_bound(list.begin(), list.end(), current, BeforeRow);
    return it == list.begin() ? kNoMoreDiffs : std::prev(it)->FirstRow;
}

long DiffRowAt(const DiffList& list, std::size_t position) {
    if (position < 1 || position > list.size()) throw RuntimeError(err::SubscriptOutOfRange);
    return list[position - 1].FirstRow;
}

} // namespace orvane
