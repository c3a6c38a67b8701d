#include "results/FlexGrid.h"

#include "frame/RuntimeError.h"

#include <algorithm>

namespace orvane {
namespace {

// The numbers a flex grid raises for an address outside the table.
constexpr long kInvalidRow = 30009;
constexpr long kInvalidIndex = 30010;
constexpr long kCannotRemoveFixed = 30015;

} // namespace

FlexGrid::FlexGrid() {
    SetRows(2);
}

std::size_t FlexGrid::Index(long row) const {
    if (row < 0 || row >= Rows()) throw RuntimeError(kInvalidRow, "Invalid Row value");
    return static_cast<std::size_t>(row);
}

void FlexGrid::CheckRow(long r) const {
    if (r < FixedRows() || r >= Rows()) throw RuntimeError(kInvalidRow, "Invalid Row value");
}

void FlexGrid::Announce(GridChange what, long first, long last) {
    if (redraw_ && observer_) observer_(what, first, last);
}

void FlexGrid::SetRows(long n) {
    if (n < FixedRows()) throw RuntimeError(kInvalidIndex, "Invalid Row value");
    while (Rows() < n)
        rows_.insert(rows_.size(), Cell{});
    while (Rows() > n)
        rows_.erase(rows_.size() - 1);
    row_ = std::min(row_, std::max<long>(Rows() - 1, 0));
    rowSel_ = std::min(rowSel_, Rows() - 1);
    topRow_ = std::clamp<long>(topRow_, FixedRows(), std::max<long>(Rows() - 1, FixedRows()));
    Announce(GridChange::Reset, 0, Rows() - 1);
}

void FlexGrid::SetRow(long r) {
    CheckRow(r);
    row_ = rowSel_ = r;
    Announce(GridChange::CurrentRow, r, r);
}

void FlexGrid::SetRowSel(long r) {
    if (r < 0 || r >= Rows()) throw RuntimeError(kInvalidRow, "Invalid Row value");
    rowSel_ = r;
}

void FlexGrid::SetTopRow(long r) {
    CheckRow(r);
    if (r == topRow_) return;
    topRow_ = r;
    Announce(GridChange::TopRow, r, r);
}

std::string FlexGrid::TextMatrix(long row, int col) const {
    if (col != 0) throw RuntimeError(kInvalidIndex, "Invalid Col value");
    return rows_[Index(row)].text;
}

void FlexGrid::SetTextMatrix(long row, int col, std::string text) {
    if (col != 0) throw RuntimeError(kInvalidIndex, "Invalid Col value");
    rows_[Index(row)].text = std::move(text);
    Announce(GridChange::Cells, row, row);
}

template <typename Fn> void FlexGrid::ForSelection(Fn&& fn) {
    const long first = std::min(row_, rowSel_), last = std::max(row_, rowSel_);
    for (long r = first; r <= last; ++r)
        fn(rows_[Index(r)]);
    Announce(GridChange::Cells, first, last);
}

Colour FlexGrid::CellBackColor() const {
    return rows_[Index(row_)].back;
}

void FlexGrid::SetCellBackColor(Colour c) {
    ForSelection([c](Cell& cell) { cell.back = c; });
}

CellPictureId FlexGrid::CellPicture() const {
    return rows_[Index(row_)].picture;
}

// A picture belongs to the current cell only, whatever the selection.
void FlexGrid::SetCellPicture(CellPictureId p) {
    rows_[Index(row_)].picture = p;
    Announce(GridChange::Cells, row_, row_);
}

int FlexGrid::CellAlignment() const {
    return rows_[Index(row_)].alignment;
}

void FlexGrid::SetCellAlignment(int a) {
    ForSelection([a](Cell& cell) { cell.alignment = static_cast<std::uint8_t>(a); });
}

void FlexGrid::AddItem(std::string text, long index) {
    if (index < 0 || index > Rows()) throw RuntimeError(kInvalidIndex, "Subscript out of range");
    rows_.insert(static_cast<std::size_t>(index), Cell{std::move(text)});
    Announce(GridChange::Reset, 0, Rows() - 1);
}

void FlexGrid::RemoveItem(long index) {
    if (index < FixedRows() || index >= Rows())
        throw RuntimeError(index < FixedRows() ? kCannotRemoveFixed : kInvalidIndex,
                           "Cannot remove the row");
    if (Rows() - 1 <= FixedRows())
        throw RuntimeError(kCannotRemoveFixed, "Cannot remove last non-fixed row");
    rows_.erase(static_cast<std::size_t>(index));
    if (row_ >= Rows()) row_ = Rows() - 1;
    if (rowSel_ >= Rows()) rowSel_ = Rows() - 1;
    if (topRow_ >= Rows()) topRow_ = Rows() - 1;
    Announce(GridChange::Reset, 0, Rows() - 1);
}

void FlexGrid::Clear() {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        rows_[i] = Cell{};
    Announce(GridChange::Reset, 0, Rows() - 1);
}

void FlexGrid::SetRedraw(bool on) {
    const bool wasOff = !redraw_;
    redraw_ = on;
    if (on && wasOff) Announce(GridChange::Reset, 0, Rows() - 1);
}

bool FlexGrid::RowIsVisible(long row) const {
    return row >= topRow_ && row < topRow_ + std::max<long>(visibleRows_, 1);
}

} // namespace orvane
