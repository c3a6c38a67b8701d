#pragma once
// What the program options need of the main window, without the toolkit: check marks of menu
// items and the line style and font of the two result grids. Menu items and grids are named as
// in the window ("mnuOptionsIgnoreCase", "grdOriginalFile"); index is the item's place in a menu
// control array, or -1 for an item that is not in one. A setter may throw RuntimeError for a
// value that the control refuses (a font name or size, an index that does not exist).
#include <string>

namespace orvane {

inline constexpr const char* kGrdOriginalFile = "grdOriginalFile";
inline constexpr const char* kGrdRevisedFile = "grdRevisedFile";

class OptionsWindow {
  public:
    virtual ~OptionsWindow() = default;

    virtual void SetMenuChecked(const std::string& name, int index, bool checked) = 0;
    virtual bool MenuChecked(const std::string& name, int index) const = 0;

    // GridLines: 1 for lines, 0 for none.
    virtual void SetGridLines(const std::string& grid, int gridLines) = 0;

    virtual std::string GridFontName(const std::string& grid) const = 0;
    virtual double GridFontSize(const std::string& grid) const = 0; // in points
    virtual bool GridFontBold(const std::string& grid) const = 0;
    virtual bool GridFontItalic(const std::string& grid) const = 0;
    virtual void SetGridFontName(const std::string& grid, const std::string& name) = 0;
    virtual void SetGridFontSize(const std::string& grid, double points) = 0;
    virtual void SetGridFontBold(const std::string& grid, bool bold) = 0;
    virtual void SetGridFontItalic(const std::string& grid, bool italic) = 0;
};

} // namespace orvane
