#include "report/PageWriter.h"

#include "report/Markup.h"

namespace orvane::report {

namespace {

std::string Anchor(int n) {
    return "orvane-diff-" + std::to_string(n);
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

} // namespace

void PageWriter::Open(Mark mark, std::string_view tooltip, bool links) {
    switch (mark) {
    case Mark::Inserted:
        body_ += "<ins>";
        break;
    case Mark::Deleted:
        body_ += "<del>";
        break;
    case Mark::Changed:
        body_ += "<span class=\"orvane-changed\" title=\"";
        AppendEscapedText(body_, tooltip);
        body_ += "\">";
        break;
    }
    if (inRun_) return;
    inRun_ = true;
    const int n = count_++;
    // The first and last differences link round to each other; Finish fixes the two ends once
    // the count is known.
    body_ += "<span class=\"orvane-chrome orvane-nav\" id=\"" + Anchor(n) + "\">";
    if (links) {
        body_ += "<a class=\"orvane-chrome\" href=\"#" + Anchor(n - 1) +
                 "\" title=\"Previous difference\">&#8249;</a><a class=\"orvane-chrome\" href=\"#" +
                 Anchor(n + 1) + "\" title=\"Next difference\">&#8250;</a>";
    }
    body_ += "</span>";
}

void PageWriter::Close(Mark mark) {
    body_ += mark == Mark::Inserted ? "</ins>" : mark == Mark::Deleted ? "</del>" : "</span>";
}

std::string PageWriter::Finish(const ReportOptions& options, const std::string& head,
                               const std::string& original, const std::string& revised) {
    if (count_ > 0) {
        ReplaceAll(body_, "href=\"#" + Anchor(-1) + "\"", "href=\"#" + Anchor(count_ - 1) + "\"");
        ReplaceAll(body_, "href=\"#" + Anchor(count_) + "\"", "href=\"#" + Anchor(0) + "\"");
    }
    std::string page =
        "<!DOCTYPE html>\n<html" + htmlAttributes_ + ">\n<head>\n<meta charset=\"utf-8\">\n<title>";
    AppendEscapedText(page, options.reportTitle);
    page += "</title>\n";
    page += head;
    page += "<style class=\"orvane-chrome\">";
    page += ReportStyleSheet();
    page += "</style>\n</head>\n<body" + bodyAttributes_ +
            ">\n<div class=\"orvane-chrome orvane-banner\">";
    page += "<b class=\"orvane-chrome\">" + EscapeUtf8(options.productTitle) + "</b> ";
    if (count_ > 0) {
        page += "<a class=\"orvane-chrome\" href=\"#" + Anchor(0) + "\">" +
                EscapeUtf8(options.bannerText) + "</a> ";
        page += "<span class=\"orvane-chrome\">(" + std::to_string(count_) +
                (count_ == 1 ? " difference)" : " differences)") + "</span>";
    } else {
        page += "<span class=\"orvane-chrome\">" + EscapeUtf8(ResultText(kIdentical)) + "</span>";
    }
    page += "<div class=\"orvane-chrome orvane-sources\">Original: " + EscapeUtf8(original) +
            "<br class=\"orvane-chrome\">Revised: " + EscapeUtf8(revised) + "</div></div>\n";
    page += body_;
    page += "\n</body>\n</html>\n";
    return page;
}

std::string_view ReportStyleSheet() {
    return R"(
ins{background:#c8f2c8 !important;color:#0b3d0b !important;text-decoration:underline !important;}
del{background:#f9cccc !important;color:#6e0b0b !important;text-decoration:line-through !important;}
ins,del{display:inline !important;visibility:visible !important;opacity:1 !important;}
ins img,del img{outline:3px solid currentColor !important;}
.orvane-changed{background:#fdeaa8 !important;border-bottom:2px dotted #8a6400 !important;}
.orvane-banner{position:static !important;display:block !important;margin:0 0 1em 0 !important;
 padding:.5em 1em !important;background:#24364f !important;color:#fff !important;
 font:14px/1.4 sans-serif !important;}
.orvane-banner a{color:#cfe3ff !important;}
.orvane-sources{font-size:12px !important;opacity:.85 !important;}
.orvane-nav a{font:bold 11px sans-serif !important;color:#24364f !important;text-decoration:none !important;
 padding:0 2px !important;background:#e3e8f0 !important;border-radius:2px !important;margin:0 1px !important;}
.orvane-placeholder{display:inline-block !important;border:1px dashed #888 !important;padding:2px 6px !important;
 color:#555 !important;font:12px sans-serif !important;}
table.orvane-listing{border-collapse:collapse !important;font:13px/1.35 monospace !important;width:100% !important;}
table.orvane-listing td{vertical-align:top !important;padding:0 .5em !important;white-space:pre-wrap !important;}
td.orvane-num{color:#777 !important;text-align:right !important;user-select:none !important;width:1%;}
tr.orvane-row-del{background:#fdeeee !important;} tr.orvane-row-ins{background:#eefbee !important;}
tr.orvane-row-chg{background:#fdf7e3 !important;}
@media print{.orvane-nav{display:none !important;}
 ins{background:none !important;border-bottom:2px solid #0b3d0b !important;}
 del{background:none !important;}
 .orvane-banner{background:none !important;color:#000 !important;border-bottom:1px solid #000 !important;}}
)";
}

} // namespace orvane::report
