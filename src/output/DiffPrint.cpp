#include "output/DiffPrint.h"

#include "frame/ErrorReporter.h"

namespace orvane::modDiffPrint {
namespace {

// The printers of the original had this face; fontconfig maps it to a metric twin where missing.
constexpr const char* kPrintFont = "Courier New";
// A line is only started above this share of the page height: the bottom tenth stays empty.
constexpr double kPageUsable = 0.9;
// The file name stands this share of the page height below the heading.
constexpr double kFileNameAt = 0.05;

bool Skipped(bool differing, WhichLines lines) {
    return (differing && lines == WhichLines::Identical) ||
           (!differing && lines == WhichLines::Differing);
}

void PlainFont(PrintSurface& printer) {
    printer.SetFontBold(false);
    printer.SetFontUnderline(false);
    printer.SetFontItalic(false);
}

} // namespace

std::string HeadingLine(long Page, const std::string& PrintDate, bool PrintPageNumbers,
                        bool PrintDateTime) {
    std::string heading = "Orvane  - ";
    if (PrintPageNumbers) heading += "Page " + std::to_string(Page);
    if (PrintDateTime) heading += "  [" + PrintDate + "]";
    return heading;
}

void PrintGridHeader(PrintSurface& printer, const std::string& FileSpec,
                     const std::string& PrintDate, bool PrintPageNumbers, bool PrintDateTime) {
    const std::string heading =
        HeadingLine(printer.Page(), PrintDate, PrintPageNumbers, PrintDateTime);
    printer.SetFontName(kPrintFont);
    PlainFont(printer);
    printer.SetFontBold(true);
    printer.SetCurrentX(0);
    printer.SetCurrentY(0);
    printer.Print(heading);

    printer.SetFontBold(false);
    printer.SetFontItalic(true);
    printer.SetCurrentX(0);
    printer.SetCurrentY(static_cast<double>(static_cast<long>(printer.Height())) * kFileNameAt);
    printer.Print(FileSpec);
    printer.Print(" ");

    printer.SetDrawStyle(0);
    printer.SetDrawWidth(1);
    const double y = printer.CurrentY();
    printer.Line(printer.CurrentX(), y, printer.Width(), y);
    printer.Print(" ");
    PlainFont(printer);
}

bool PrintGrid(PrintSurface& printer, PrintableGrid& Grid, const std::string& FileSpec,
               const std::string& PrintDate, bool PrintPageNumbers, bool PrintDateTime,
               WhichLines Lines) {
    try {
        const long LastRow = Grid.Rows() - 1;
        printer.SetFontName(kPrintFont);
        PrintGridHeader(printer, FileSpec, PrintDate, PrintPageNumbers, PrintDateTime);
        for (long row = 1; row <= LastRow; ++row) {
            Grid.SetCol(0);
            Grid.SetRow(row);
            Grid.SetRowSel(row);
            const std::string text = Grid.Text();
            const bool differing = Grid.CellBackColor() != 0;
            if (Skipped(differing, Lines)) continue;
            printer.SetCurrentX(0);
            if (!(printer.Height() * kPageUsable > printer.CurrentY())) {
                printer.NewPage();
                PrintGridHeader(printer, FileSpec, PrintDate, PrintPageNumbers, PrintDateTime);
            }
            printer.SetFontBold(differing);
            printer.Print(text);
        }
        printer.EndDoc();
    } catch (...) {
        ReportUnexpectedError("modDiffPrint.PrintGrid");
    }
    return true; // the handler gives true as well: callers never see a failure
}

void PrintFileDiffs(DiffPrintSource& window, PrintSurface& printer, bool PrintOriginal,
                    bool PrintRevised, bool PrintPageNumbers, bool PrintDateTime,
                    WhichLines Lines) {
    PrintableGrid& original = window.Grid(true);
    PrintableGrid& revised = window.Grid(false);
    const long originalRow = original.Row(), revisedRow = revised.Row();
    const int originalCol = original.Col(), revisedCol = revised.Col();
    try {
        window.SetHourglass(true);
        const std::string originalName = window.FileBoxText(true);
        const std::string revisedName = window.FileBoxText(false);
        bool ok = true;
        if (PrintOriginal)
            ok = PrintGrid(printer, original, originalName, window.GeneralDateNow(),
                           PrintPageNumbers, PrintDateTime, Lines);
        if (ok && PrintRevised)
            PrintGrid(printer, revised, revisedName, window.GeneralDateNow(), PrintPageNumbers,
                      PrintDateTime, Lines);
        window.SetHourglass(false);
    } catch (...) {
        window.SetHourglass(false);
        ReportUnexpectedError("modDiffPrint.PrintFileDiffs");
    }
    original.SetRow(originalRow);
    original.SetCol(originalCol);
    revised.SetRow(revisedRow);
    revised.SetCol(revisedCol);
}

} // namespace orvane::modDiffPrint
