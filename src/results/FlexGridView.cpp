#include "results/FlexGridView.h"

#include "compare/lcs/CodePoints.h"
#include "results/FixedColours.h"
#include "results/RowMarkers.h"

#include <QBrush>
#include <QColor>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

namespace orvane {
namespace {

QColor ToQColor(Colour c) {
    return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF);
}

} // namespace

QString DecodeCellText(const std::string& bytes, TextEncoding encoding) {
    if (encoding == TextEncoding::Utf8)
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    const std::u32string text = lcs::DecodeText(bytes, lcs::TextEncoding::Windows1252);
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size()));
}

QString DecodeCellPrefix(const std::string& bytes, TextEncoding encoding, qsizetype units) {
    // Four bytes more than a character can take, so the cut never falls inside the first `units`.
    const std::size_t take = std::min(bytes.size(), static_cast<std::size_t>(units) * 4 + 4);
    QString text = DecodeCellText(bytes.substr(0, take), encoding);
    if (text.size() > units) {
        text.truncate(units);
        if (text.back().isHighSurrogate()) text.chop(1);
    }
    return text;
}

FlexGridModel::FlexGridModel(FlexGrid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid) {}

int FlexGridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(grid_.Rows() - 1);
}

int FlexGridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

// More than the widest screen shows at any readable size: a cell looks as if it held the whole
// line, which stays in the grid for find and printing, but a line of megabytes is neither
// decoded nor laid out for each paint.
constexpr qsizetype kShownCellUnits = 4096;

QString FlexGridModel::DisplayText(long row) const {
    return DecodeCellPrefix(grid_.RowText(row), grid_.Encoding(), kShownCellUnits);
}

QVariant FlexGridModel::data(const QModelIndex& index, int role) const {
    const long row = GridRow(index);
    if (row >= grid_.Rows()) return {};
    switch (role) {
    case Qt::DisplayRole:
        return DisplayText(row);
    case Qt::DecorationRole:
        if (grid_.RowPicture(row) != CellPictureId::None) {
            static const QPixmap markers[] = {{},
                                              RowMarker(CellPictureId::Arrow),
                                              RowMarker(CellPictureId::OrphanArrow),
                                              RowMarker(CellPictureId::DifferArrow),
                                              RowMarker(CellPictureId::BookmarkArrow),
                                              RowMarker(CellPictureId::Bookmark)};
            return markers[static_cast<int>(grid_.RowPicture(row))];
        }
        return {};
    case Qt::BackgroundRole:
        if (Colour c = grid_.RowBackColor(row)) return QBrush(ToQColor(c));
        return {};
    default:
        return {};
    }
}

QVariant FlexGridModel::headerData(int, Qt::Orientation o, int role) const {
    if (o == Qt::Horizontal && role == Qt::DisplayRole) return DisplayText(0);
    if (o == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

FlexGridView::FlexGridView(FlexGrid& grid, const QString& name, QWidget* parent)
    : QTableView(parent), grid_(grid), model_(new FlexGridModel(grid, this)) {
    setObjectName(name);
    UseFixedColours(*this);
    setModel(model_);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 2);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::StrongFocus);
    setIconSize(QSize(10, 8));
    setWordWrap(false);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setMouseTracking(true);
    setAutoScroll(false); // setting the current row does not scroll, as in the grid control
    grid_.SetObserver([this](GridChange w, long f, long l) { OnGridChange(w, f, l); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { SyncTopRowFromScroll(); });
}

void FlexGridView::OnGridChange(GridChange what, long first, long last) {
    switch (what) {
    case GridChange::Reset:
        model_->Reset();
        [[fallthrough]];
    case GridChange::TopRow:
        ShowTopRow();
        break;
    case GridChange::Cells:
        emit model_->dataChanged(model_->index(static_cast<int>(std::max(first, 1L) - 1), 0),
                                 model_->index(static_cast<int>(std::max(last, 1L) - 1), 0));
        if (first == 0) emit model_->headerDataChanged(Qt::Horizontal, 0, 0);
        break;
    case GridChange::CurrentRow:
        if (first >= 1 && first < grid_.Rows() && currentIndex().row() != first - 1)
            setCurrentIndex(model_->index(static_cast<int>(first - 1), 0));
        break;
    }
}

// A scroll made by the program is a scroll all the same: the other grid follows it as it follows
// the user's, which is what keeps row r of one grid beside row r of the other.
// Near the end the grid cannot scroll that far, and TopRow then reads as the row really on top.
void FlexGridView::ShowTopRow() {
    if (syncing_ || grid_.TopRow() < 1 || grid_.TopRow() >= grid_.Rows()) return;
    syncing_ = true;
    executeDelayedItemsLayout(); // the scroll range of a model just reset
    verticalScrollBar()->setValue(static_cast<int>(grid_.TopRow() - 1));
    const long shown = verticalScrollBar()->value() + 1;
    if (shown < grid_.Rows()) grid_.SetTopRow(shown);
    syncing_ = false;
    emit TopRowChanged(grid_.TopRow());
}

void FlexGridView::SyncTopRowFromScroll() {
    if (syncing_) return;
    const long top = verticalScrollBar()->value() + 1;
    if (top < grid_.Rows() && top != grid_.TopRow()) {
        syncing_ = true;
        grid_.SetTopRow(top);
        syncing_ = false;
        emit TopRowChanged(top);
    }
}

void FlexGridView::SetGridLines(int gridLines) {
    grid_.SetGridLines(gridLines);
    setShowGrid(gridLines != 0);
}

void FlexGridView::SetGridFont(const QFont& f) {
    setFont(f);
    verticalHeader()->setDefaultSectionSize(QFontMetrics(f).height() + 2);
}

long FlexGridView::RowAt(const QPoint& viewportPos) const {
    const int row = rowAt(viewportPos.y());
    return row < 0 ? -1 : row + 1;
}

void FlexGridView::mousePressEvent(QMouseEvent* e) {
    const long row = RowAt(e->position().toPoint());
    if (row >= 1 && row < grid_.Rows() && e->button() == Qt::LeftButton) grid_.SetRow(row);
    setFocus(Qt::MouseFocusReason);
    pressed_ = e->button() == Qt::LeftButton;
    emit MouseDown(e->button() == Qt::RightButton  ? 2
                   : e->button() == Qt::LeftButton ? 1
                                                   : 4,
                   e->globalPosition().toPoint());
}

void FlexGridView::mouseReleaseEvent(QMouseEvent* e) {
    const bool click = pressed_ && e->button() == Qt::LeftButton;
    pressed_ = false;
    if (click) emit Click();
}

void FlexGridView::keyPressEvent(QKeyEvent* e) {
    QTableView::keyPressEvent(e);
    if (currentIndex().isValid()) scrollTo(currentIndex());
}

void FlexGridView::mouseDoubleClickEvent(QMouseEvent* e) {
    if (e->button() == Qt::LeftButton) emit DblClick();
}

void FlexGridView::mouseMoveEvent(QMouseEvent* e) {
    emit MouseMove(RowAt(e->position().toPoint()));
}

// Keys move the current row of this grid only.
void FlexGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    const long row = current.isValid() ? FlexGridModel::GridRow(current) : -1;
    if (row >= 1 && row < grid_.Rows() && row != grid_.Row()) grid_.SetRow(row);
}

void FlexGridView::resizeEvent(QResizeEvent* e) {
    QTableView::resizeEvent(e);
    const int rowHeight = std::max(verticalHeader()->defaultSectionSize(), 1);
    grid_.SetVisibleRowCount(viewport()->height() / rowHeight);
}

} // namespace orvane
