#include "results/Navigation.h"

#include "frame/RuntimeError.h"

namespace orvane {
namespace {

long FirstRowOf(const std::string& entry) {
    return std::stol(entry.substr(0, entry.find('-')));
}

} // namespace

long NextDiffRow(const DiffList& list, long current) {
    for (const std::string& entry : list)
        if (FirstRowOf(entry) > current) return FirstRowOf(entry);
    return kNoMoreDiffs;
}

long PreviousDiffRow(const DiffList& list, long current) {
    for (auto it = list.rbegin(); it != list.rend(); ++it)
        if (FirstRowOf(*it) < current) return FirstRowOf(*it);
    return kNoMoreDiffs;
}

long DiffRowAt(const DiffList& list, std::size_t position) {
    if (position < 1 || position > list.size()) throw RuntimeError(err::SubscriptOutOfRange);
    return FirstRowOf(list[position - 1]);
}

} // namespace orvane
