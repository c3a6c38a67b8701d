#include "results/report/DiffReportControl.h"

#include "intake/Locations.h"
#include "report/Report.h"

#include <QProcess>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace orvane {
namespace {

std::string NewReportFile(const std::string& extension = ".html") {
    std::string pattern =
        (std::filesystem::temp_directory_path() / ("orvane-report-XXXXXX" + extension)).string();
    const int fd = ::mkstemps(pattern.data(), static_cast<int>(extension.size()));
    if (fd < 0) return {};
    ::close(fd);
    return pattern;
}

bool IsWeb(const std::string& source) {
    return ClassifyLocation(source) == LocationKind::WebAddress;
}

} // namespace

DiffReportControl::DiffReportControl(QWidget* parent) : ReportView(parent) {}

DiffReportControl::~DiffReportControl() {
    if (running_.valid()) running_.wait(); // the engine cannot be stopped half-way
    RemoveReportFile();
}

void DiffReportControl::SetDiffOptions(bool, bool, bool, bool ignoreFormatting, bool ignoreCase,
                                       int whiteSpaceMode, int level) {
    options_.ignoreFormatting = ignoreFormatting;
    options_.ignoreCase = ignoreCase;
    options_.whiteSpaceMode = whiteSpaceMode;
    options_.level = static_cast<report::DetailLevel>(level);
}

void DiffReportControl::SetBanner(const std::string& text, const std::string&,
                                  const std::string& product, const std::string& title) {
    // The banner's home page is not linked: nothing in a report leaves it on a click.
    options_.bannerText = text;
    options_.productTitle = product;
    options_.reportTitle = title;
}

void DiffReportControl::StartCompare() {
    ClearReport();
    result_ = report::kUnknownProblem;
    running_ = std::async(std::launch::async, [o = options_, a = original_, b = revised_] {
        return report::MakeReport(a, b, o);
    });
}

bool DiffReportControl::IsDone() {
    if (!running_.valid()) return true;
    if (running_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return false;
    ShowResult(running_.get());
    return true;
}

void DiffReportControl::ShowResult(report::ReportResult result) {
    result_ = result.code;
    if (result.code != report::kDifferent && result.code != report::kIdentical) return;
    reportFile_ = NewReportFile();
    std::ofstream(reportFile_, std::ios::binary) << result.html;
    // A page that will not show is a problem of ours, not a difference.
    if (!ShowReport(reportFile_, IsWeb(original_) || IsWeb(revised_)))
        result_ = report::kUnknownProblem;
}

bool DiffReportControl::PrintReport(const std::string& printer) {
    const std::string pdf = NewReportFile(".pdf");
    bool sent = false;
    if (PrintToPdf(pdf)) {
        QProcess lp;
        lp.start("lp", {"-d", QString::fromStdString(printer), "--", QString::fromStdString(pdf)});
        // lp copies the file into the spool before it ends, so the file can go afterwards.
        sent = lp.waitForFinished(60'000) && lp.exitStatus() == QProcess::NormalExit &&
               lp.exitCode() == 0;
    }
    std::remove(pdf.c_str());
    return sent;
}

void DiffReportControl::ClearReport() {
    ReportView::ClearReport();
    RemoveReportFile();
}

void DiffReportControl::RemoveReportFile() {
    if (!reportFile_.empty()) std::remove(reportFile_.c_str());
    reportFile_.clear();
}

} // namespace orvane
