#pragma once
// Printing the result grids as plain monospaced text, one document per file, differing lines in
// bold. Qt-free: the grids and the window are reached through the two small interfaces below.
#include "output/PrintSurface.h"

#include <string>

namespace orvane {

// The grid operations printing needs: one cell selection per row, then its text and colour.
class PrintableGrid {
  public:
    virtual ~PrintableGrid() = default;
    virtual long Rows() const = 0;
    virtual long Row() const = 0;
    virtual int Col() const = 0;
    virtual void SetRow(long row) = 0;
    virtual void SetCol(int col) = 0;
    virtual void SetRowSel(long row) = 0;
    // The selected cell's text (UTF-8) and back colour; 0 means "same".
    virtual std::string Text() const = 0;
    virtual unsigned long CellBackColor() const = 0;
};

// What printing asks of the window that shows the grids.
class DiffPrintSource {
  public:
    virtual ~DiffPrintSource() = default;
    virtual PrintableGrid& Grid(bool original) = 0;
    // The present text of the file box of that side, as the header's file name.
    virtual std::string FileBoxText(bool original) const = 0;
    // The present date and time in the system's general date format.
    virtual std::string GeneralDateNow() const = 0;
    virtual void SetHourglass(bool busy) = 0;
};

enum class WhichLines { All = 0, Differing = 1, Identical = 2 };

namespace modDiffPrint {

void PrintFileDiffs(DiffPrintSource& window, PrintSurface& printer, bool PrintOriginal,
                    bool PrintRevised, bool PrintPageNumbers, bool PrintDateTime, WhichLines Lines);

// True on every way out, also after an error has been reported.
bool PrintGrid(PrintSurface& printer, PrintableGrid& Grid, const std::string& FileSpec,
               const std::string& PrintDate, bool PrintPageNumbers, bool PrintDateTime,
               WhichLines Lines);

// The heading line of a page: "Orvane  - ", then "Page n", then "  [date]".
std::string HeadingLine(long Page, const std::string& PrintDate, bool PrintPageNumbers,
                        bool PrintDateTime);

void PrintGridHeader(PrintSurface& printer, const std::string& FileSpec,
                     const std::string& PrintDate, bool PrintPageNumbers, bool PrintDateTime);

} // namespace modDiffPrint
} // namespace orvane
