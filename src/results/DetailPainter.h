#pragma once
// Paints a line into a detail box: black text with red runs. Runs count characters (code points),
// which the box counts in UTF-16 units; the conversion is made here once.
#include "results/DetailRuns.h"

#include <QString>
#include <string>
#include <vector>

namespace orvane {

class LineDetailView;

QString FromUtf32(const std::u32string& text);
std::u32string ToUtf32(const QString& text);

// Sets the box's text and colours every run red; `allRed` colours the whole line.
void PaintDetail(LineDetailView& box, const QString& text, const std::vector<WordRun>& runs);
void PaintDetail(LineDetailView& box, const QString& text, bool allRed);

} // namespace orvane
