#include "results/DiffBar.h"

#include "results/WindowLayout.h"

namespace orvane {
namespace {

float RowHeight(long rowSpan, int barHeight) {
    return static_cast<float>(barHeight) / static_cast<float>(rowSpan);
}

} // namespace

std::vector<BarBand> DiffBarBands(const DiffList& list, long rowSpan, int barHeight) {
    std::vector<BarBand> bands;
    const float rowHeight = RowHeight(rowSpan, barHeight);
    for (const DiffItem& item : list) {
        const int height = RoundToInt32(rowHeight * static_cast<float>(item.RowCount));
        const int top = RoundToInt32(
            barHeight * (static_cast<double>(item.FirstRow - 1) / static_cast<double>(rowSpan)));
        if (height > 0) bands.push_back({top, top + height, DiffColour(item.Kind)});
    }
    return bands;
}

int DiffBarMarkY(long row, long rowSpan, int barHeight) {
    return RoundToInt32(RowHeight(rowSpan, barHeight) * static_cast<float>(row - 1));
}

long DiffBarTargetRow(float y, long rowSpan, int barHeight) {
    const long target = RoundToInt32(y / RowHeight(rowSpan, barHeight));
    return target == 0 ? 1 : target;
}

} // namespace orvane
