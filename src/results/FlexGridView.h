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

    // The grid row under a point of the viewport, or -1.
    long RowAt(const QPoint& viewportPos) const;

  signals:
    void TopRowChanged(long topRow);
    // A press makes the pressed row current first, as the grid control does.
    void Click();
    void DblClick();
    void MouseDown(int button, QPoint globalPos);
    void MouseMove(long mouseRow);

  protected:
    void resizeEvent(QResizeEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void mouseDoubleClickEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    void OnGridChange(GridChange what, long first, long last);
    void ShowTopRow();
    void SyncTopRowFromScroll();

    FlexGrid& grid_;
    FlexGridModel* model_;
    bool syncing_ = false;
    bool pressed_ = false;
};

// The text of a cell's bytes as the grid's encoding says.
QString DecodeCellText(const std::string& bytes, TextEncoding encoding);
// The first `units` UTF-16 units of that text, decoding no more of the bytes than it needs.
QString DecodeCellPrefix(const std::string& bytes, TextEncoding encoding, qsizetype units);

} // namespace orvane
