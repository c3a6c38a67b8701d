#pragma once
// The results grid as a plain model with the operations of a classic flex grid: one column, one
// fixed row, a current row and a selection end, per-cell text, background colour and picture.
// The difference model is kept in these cells, so views and logic share one source of truth.
// A view observes it; while Redraw is false nothing is announced, and turning Redraw on again
// announces one reset, so bulk fills cost no painting.
#include "results/GapBuffer.h"

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

using Colour = std::uint32_t; // red + 256 * green + 65536 * blue; 0 means "no colour set"

constexpr Colour RGB(unsigned r, unsigned g, unsigned b) {
    return r + 256 * g + 65536 * b;
}

// The pictures a cell can carry (the row markers).
enum class CellPictureId : std::uint8_t {
    None,
    Arrow,
    OrphanArrow,
    DifferArrow,
    BookmarkArrow,
    Bookmark
};

// How the grid's byte text is shown: decided once per loaded file.
enum class TextEncoding : std::uint8_t { Utf8, Windows1252 };

enum class GridChange { Reset, Cells, TopRow, CurrentRow };

class FlexGrid {
  public:
    using Observer = std::function<void(GridChange, long first, long last)>;

    FlexGrid();

    long Rows() const { return static_cast<long>(rows_.size()); }
    void SetRows(long n);
    int Cols() const { return 1; }
    int FixedRows() const { return 1; }

    // Setting Row also resets RowSel to it. Row must name a data row.
    long Row() const { return row_; }
    void SetRow(long r);
    long RowSel() const { return rowSel_; }
    void SetRowSel(long r);
    long TopRow() const { return topRow_; }
    void SetTopRow(long r);

    std::string TextMatrix(long row, int col) const;
    void SetTextMatrix(long row, int col, std::string text);
    std::string Text() const { return TextMatrix(row_, 0); }

    // Cell format of Row; a write applies to all rows from Row to RowSel.
    Colour CellBackColor() const;
    void SetCellBackColor(Colour c);
    CellPictureId CellPicture() const;
    void SetCellPicture(CellPictureId p);
    int CellAlignment() const;
    void SetCellAlignment(int a);

    // Inserts a row before `index` (index == Rows appends).
    void AddItem(std::string text, long index);
    void AddItem(std::string text) { AddItem(std::move(text), Rows()); }
    void RemoveItem(long index);
    // Empties all cells and their format, fixed row included; Rows stays.
    void Clear();

    bool Redraw() const { return redraw_; }
    void SetRedraw(bool on);

    // The view tells the model how many rows it shows, for RowIsVisible and paging.
    void SetVisibleRowCount(long n) { visibleRows_ = n; }
    long VisibleRowCount() const { return visibleRows_; }
    bool RowIsVisible(long row) const;

    int GridLines() const { return gridLines_; }
    void SetGridLines(int g) { gridLines_ = g; }
    TextEncoding Encoding() const { return encoding_; }
    void SetEncoding(TextEncoding e) { encoding_ = e; }

    // Direct access for views and searches; row must be valid.
    const std::string& RowText(long row) const { return rows_[Index(row)].text; }
    Colour RowBackColor(long row) const { return rows_[Index(row)].back; }
    CellPictureId RowPicture(long row) const { return rows_[Index(row)].picture; }

    void SetObserver(Observer o) { observer_ = std::move(o); }

  private:
    struct Cell {
        std::string text;
        Colour back = 0;
        CellPictureId picture = CellPictureId::None;
        std::uint8_t alignment = 0;
    };

    std::size_t Index(long row) const;
    void CheckRow(long r) const;
    template <typename Fn> void ForSelection(Fn&& fn);
    void Announce(GridChange what, long first, long last);

    GapBuffer<Cell> rows_;
    long row_ = 1;
    long rowSel_ = 1;
    long topRow_ = 1;
    long visibleRows_ = 0;
    int gridLines_ = 1;
    bool redraw_ = true;
    TextEncoding encoding_ = TextEncoding::Utf8;
    Observer observer_;
};

} // namespace orvane
