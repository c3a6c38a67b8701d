#pragma once
// The Print commands of the two-window view: the grids go to a printer or a PDF file through
// Print Options.
#include <string>

namespace orvane {

class frmFileDiffs;

// Shows Print Options over the window's grids; pdfFile empty chooses among the printers.
void PrintGrids(frmFileDiffs& window, const std::string& pdfFile);
// Asks for a file name, then prints into it as PDF.
void PrintGridsToPdf(frmFileDiffs& window);

} // namespace orvane
