#pragma once
// The merged page being written: the marks of changes, their numbering and navigation, and the
// page around them. A difference is a maximal run of marks with no equal content between.
#include "report/ReportTypes.h"

#include <string>

namespace orvane::report {

enum class Mark { Inserted, Deleted, Changed };

class PageWriter {
  public:
    std::string& Out() { return body_; }

    // Opens `ins`, `del` or a changed-formatting span; the first mark of a difference carries its
    // anchor and the links to its neighbours.
    // `links` false inside a link, where another link would break the page's structure: the
    // difference then keeps its anchor only.
    void Open(Mark mark, std::string_view tooltip = {}, bool links = true);
    void Close(Mark mark);
    // Equal content was written: the next mark starts a new difference.
    void Equal() { inRun_ = false; }
    int Count() const { return count_; }
    // The Revised page's own attributes of html and body (class, style, lang), so that its
    // style sheets still apply; written as ` name="value"...`.
    void SetRootAttributes(std::string html, std::string body) {
        htmlAttributes_ = std::move(html);
        bodyAttributes_ = std::move(body);
    }

    // The whole document. `head` is the Revised page's kept head content (styles, links).
    std::string Finish(const ReportOptions& options, const std::string& head,
                       const std::string& original, const std::string& revised);

  private:
    std::string body_;
    std::string htmlAttributes_, bodyAttributes_;
    int count_ = 0;
    bool inRun_ = false;
};

// The report's own style sheet.
std::string_view ReportStyleSheet();

} // namespace orvane::report
