#pragma once
// A table view over a FlexGrid: no widget per row, a fixed row height, and one model reset per
// bulk change, so a million rows scroll as freely as ten.
#include "results/FlexGrid.h"

#include <QAbstractTableModel>
#include <QTableView>

namespace orvane {

class FlexGridModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit FlexGridModel(FlexGrid& grid, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation o, int role) const override;

    void Reset() {
        beginResetModel();
        endResetModel();
    }

    // Grid rows are data rows from 1; the fixed row 0 is the header.
    static long GridRow(const QModelIndex& index) { return index.row() + 1; }

  private:
    QString DisplayText(long row) const;
    FlexGrid& grid_;
};

class FlexGridView : public QTableView {
    Q_OBJECT
  public:
    explicit FlexGridView(FlexGrid& grid, const QString& name, QWidget* parent = nullptr);
    FlexGrid& Grid() { return grid_; }
    // GridLines 1 shows lines between rows, 0 none.
    void SetGridLines(int gridLines);
    // Rows follow the font's height.
    void SetGridFont(const QFont& font);

  signals:
    void TopRowChanged(long topRow);

  protected:
    void resizeEvent(QResizeEvent* e) override;

  private:
    void OnGridChange(GridChange what, long first, long last);
    void SyncTopRowFromScroll();

    FlexGrid& grid_;
    FlexGridModel* model_;
    bool syncing_ = false;
};

// The text of a cell's bytes as the grid's encoding says.
QString DecodeCellText(const std::string& bytes, TextEncoding encoding);

} // namespace orvane
