// What the two grids do when the user works with them; each handler serves both grids.
#include "results/Commands.h"
#include "results/FlexGridView.h"
#include "results/GridFill.h"
#include "results/frmFileDiffs.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QToolTip>

namespace orvane {
namespace {

constexpr int kToolTipLength = 255;

Side Other(Side side) {
    return side == Side::Original ? Side::Revised : Side::Original;
}

} // namespace

void frmFileDiffs::ConnectGridEvents() {
    for (Side side : {Side::Original, Side::Revised}) {
        FlexGridView* view = GridView(side);
        connect(view, &FlexGridView::Click, this, [this, side] { Grid_Click(side); });
        connect(view, &FlexGridView::DblClick, this, [this, side] { Grid_DblClick(side); });
        connect(view, &FlexGridView::MouseDown, this,
                [this, side](int button, QPoint at) { Grid_MouseDown(side, button, at); });
        connect(view, &FlexGridView::MouseMove, this,
                [this, side](long row) { Grid_MouseMove(side, row); });
        QComboBox* box = side == Side::Original ? cboOriginalFile : cboRevisedFile;
        connect(box->lineEdit(), &QLineEdit::textEdited, this,
                [this, side] { FileBox_Change(side); });
    }
}

bool frmFileDiffs::ShowsPrompt(Side side) {
    return QString::fromStdString(GridOf(side).TextMatrix(0, 0))
               .compare(kIdlePrompt, Qt::CaseInsensitive) == 0;
}

void frmFileDiffs::Grid_Click(Side side) {
    if (ShowsPrompt(side)) return;
    GridOf(Other(side)).SetRow(GridOf(side).Row());
    UpdateRowArrow();
    MarkCurrentRowInDiffsBar();
    ShowDetailForCurrentRow();
}

void frmFileDiffs::Grid_DblClick(Side side) {
    if (ShowsPrompt(side)) return;
    if (QAction* toggle = commands_->Item("mnuFileToggleBookmark"); toggle && toggle->isEnabled())
        toggle->trigger();
}

void frmFileDiffs::Grid_MouseDown(Side side, int button, QPoint globalPos) {
    if (ShowsPrompt(side) || button != 2) return;
    if (QAction* file = commands_->Item("mnuFile")) file->menu()->popup(globalPos);
}

void frmFileDiffs::Grid_MouseMove(Side side, long mouseRow) {
    QAction* tips = commands_->Item("mnuOptionsDisplayGridTooltips");
    if (!tips || !tips->isChecked()) return;
    const FlexGrid& grid = GridOf(side);
    if (mouseRow < 0 || mouseRow >= grid.Rows()) return;
    const QString text = DecodeCellPrefix(grid.RowText(mouseRow), grid.Encoding(), kToolTipLength);
    GridView(side)->setToolTip(text);
}

bool frmFileDiffs::RowsHaveNoColour() const {
    return originalGrid_.CellBackColor() == 0 && revisedGrid_.CellBackColor() == 0;
}

bool frmFileDiffs::EitherLineEmpty() const {
    const bool numbers = session_.ViewOptions.ShowLineNumbers;
    return LineTextOfCell(originalGrid_.Text(), numbers).empty() ||
           LineTextOfCell(revisedGrid_.Text(), numbers).empty();
}

} // namespace orvane
