#pragma once
// The printer as the printing routines see it: a pen position in twips, a font, one line of text
// at a time, straight lines, pages and documents. The Qt printer sits behind it; tests and
// benchmarks can stand in their own.
#include <string>

namespace orvane {

enum class PageOrientation { Portrait = 1, Landscape = 2 };

class PrintSurface {
  public:
    virtual ~PrintSurface() = default;

    // The printable area of the page, in twips.
    virtual double Width() const = 0;
    virtual double Height() const = 0;
    // The page number within the present document, from 1.
    virtual long Page() const = 0;

    virtual double CurrentX() const = 0;
    virtual double CurrentY() const = 0;
    virtual void SetCurrentX(double x) = 0;
    virtual void SetCurrentY(double y) = 0;

    virtual void SetFontName(const std::string& name) = 0;
    virtual void SetFontBold(bool on) = 0;
    virtual void SetFontItalic(bool on) = 0;
    virtual void SetFontUnderline(bool on) = 0;
    // 0 solid; the width in printer pixels.
    virtual void SetDrawStyle(int style) = 0;
    virtual void SetDrawWidth(int width) = 0;

    // Prints one line at the pen and moves the pen to the start of the next line. Nothing wraps.
    virtual void Print(const std::string& text) = 0;
    // A black line; the pen ends at its far end.
    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    virtual void NewPage() = 0;
    // Ends the present document; the next output starts a new one, at page 1.
    virtual void EndDoc() = 0;
    virtual void SetOrientation(PageOrientation orientation) = 0;
};

} // namespace orvane
