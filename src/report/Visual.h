#pragma once
// The Visual kind: the Revised page as it renders, with the words, images and embedded content
// removed since the Original copied back in place as `del` and what is new in `ins`.
#include "intake/html/Dom.h"
#include "report/Markup.h"
#include "report/PageWriter.h"
#include "report/ReportTypes.h"

#include <string>

namespace orvane::report {

struct VisualPage {
    const html::Document* doc = nullptr;
    PageBase base;
};

// Writes the merged body into the writer. Returns the Revised page's kept head content (its
// style sheets), for the page around it.
std::string WriteVisual(const VisualPage& original, const VisualPage& revised,
                        const ReportOptions& options, PageWriter& writer);

} // namespace orvane::report
