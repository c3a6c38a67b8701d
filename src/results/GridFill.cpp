#include "results/GridFill.h"

#include "compare/linediff/LineSplitter.h"
#include "frame/ErrorReporter.h"
#include "frame/FileBytes.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "frame/YieldPoint.h"
#include "text/Utf8.h"

namespace orvane {
namespace {

constexpr std::string_view kTabReplacement = "   ";

std::string CellText(std::string_view line, long number, bool showNumbers) {
    std::string cell;
    cell.reserve(line.size() + 12);
    cell += ' ';
    if (showNumbers) {
        cell += std::to_string(number);
        cell += ':';
    }
    cell.append(line);
    if (line.find('\t') != std::string_view::npos)
        cell = kw::ReplaceString(cell, "\t", std::string(kTabReplacement));
    return cell;
}

void LoadFileIntoGrid(const std::string& path, FlexGrid& grid, bool showNumbers) {
    const std::string bytes = ReadFileBytes(path);
    grid.SetEncoding(text::IsValidUtf8(bytes) ? TextEncoding::Utf8 : TextEncoding::Windows1252);
    long counter = 0;
    YieldPoint yield;
    linediff::ForEachLine(bytes, [&](std::string_view line) {
        ++counter;
        yield();
        grid.AddItem(CellText(linediff::DisplayText(line), counter, showNumbers), counter);
    });
    grid.SetRow(1);
    grid.SetRowSel(counter);
    grid.SetCellAlignment(1);
}

} // namespace

bool LoadFilesIntoGrids(const std::string& OriginalPath, const std::string& RevisedPath,
                        FlexGrid& original, FlexGrid& revised, bool ShowLineNumbers) {
    try {
        LoadFileIntoGrid(OriginalPath, original, ShowLineNumbers);
        LoadFileIntoGrid(RevisedPath, revised, ShowLineNumbers);
        return true;
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.LoadFilesIntoGrids");
        return false;
    }
}

void RemoveRowsInGrids(FlexGrid& original, FlexGrid& revised) {
    try {
        for (FlexGrid* grid : {&original, &revised}) {
            const long rows = grid->Rows();
            if (rows > 1)
                for (long n = 2; n <= rows - 1; ++n)
                    grid->RemoveItem(2);
        }
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.RemoveRowsInGrids");
    }
}

void PrepareGridForNewComparison(FlexGrid& original, FlexGrid& revised) {
    try {
        original.SetRedraw(false);
        revised.SetRedraw(false);
        original.Clear();
        revised.Clear();
        DoEvents();
        RemoveRowsInGrids(original, revised);
        DoEvents();
        original.SetRow(1);
        revised.SetRow(1);
        original.SetTopRow(1);
    } catch (...) {
        ReportUnexpectedError("frmFileDiffs.PrepareGridForNewComparison");
    }
}

std::string LineTextOfCell(const std::string& cell, bool ShowLineNumbers) {
    if (!ShowLineNumbers) return cell;
    const std::size_t colon = cell.find(':');
    return colon == std::string::npos ? cell : cell.substr(colon + 1);
}

} // namespace orvane
