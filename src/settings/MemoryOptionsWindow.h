#pragma once
// The window's side of the options kept in memory: for a run that has no window (the unattended
// report run), so that what it reads from the settings file is written back unchanged.
#include "settings/OptionsWindow.h"

#include <map>
#include <string>
#include <utility>

namespace orvane {

class MemoryOptionsWindow : public OptionsWindow {
  public:
    struct Font {
        std::string Name = "Courier New";
        double Size = 8;
        bool Bold = false;
        bool Italic = false;
    };
    std::map<std::pair<std::string, int>, bool> Checks;
    std::map<std::string, int> GridLines;
    std::map<std::string, Font> Fonts;

    void SetMenuChecked(const std::string& name, int index, bool checked) override {
        Checks[{name, index}] = checked;
    }
    bool MenuChecked(const std::string& name, int index) const override {
        const auto it = Checks.find({name, index});
        return it != Checks.end() && it->second;
    }
    void SetGridLines(const std::string& grid, int lines) override { GridLines[grid] = lines; }
    std::string GridFontName(const std::string& g) const override { return FontOf(g).Name; }
    double GridFontSize(const std::string& g) const override { return FontOf(g).Size; }
    bool GridFontBold(const std::string& g) const override { return FontOf(g).Bold; }
    bool GridFontItalic(const std::string& g) const override { return FontOf(g).Italic; }
    void SetGridFontName(const std::string& g, const std::string& name) override {
        Fonts[g].Name = name;
    }
    void SetGridFontSize(const std::string& g, double points) override { Fonts[g].Size = points; }
    void SetGridFontBold(const std::string& g, bool bold) override { Fonts[g].Bold = bold; }
    void SetGridFontItalic(const std::string& g, bool it) override { Fonts[g].Italic = it; }

  private:
    Font FontOf(const std::string& g) const {
        const auto it = Fonts.find(g);
        return it == Fonts.end() ? Font{} : it->second;
    }
};

} // namespace orvane
