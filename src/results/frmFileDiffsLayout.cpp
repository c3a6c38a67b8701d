// The main window's regions on screen: the twips arithmetic of WindowLayout applied to the
// widgets, the splitter handle, and drops on the file boxes.
#include "dialogs/AutoCompletePath.h"
#include "results/Commands.h"
#include "results/DiffBarView.h"
#include "results/FlexGridView.h"
#include "results/LineDetailView.h"
#include "results/frmFileDiffs.h"
#include "results/report/DiffReportControl.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QProgressBar>
#include <QScreen>
#include <QStyle>
#include <QToolBar>
#include <QUrl>

namespace orvane {
namespace {

constexpr float kTwipsPerInch = 1440;
constexpr float kDesignClientWidth = 10290;
constexpr float kDesignClientHeight = 6630;
constexpr float kToolbarHeight = 540;
const Region kAnimation{7980, 180, 2205, 285};
const Region kBarContainer{60, 870, 405, 2925};
const Region kBar{60, 0, 225, 2865}; // inside the container

class SplitterHandle : public QWidget {
  public:
    SplitterHandle(frmFileDiffs& window, QWidget* parent) : QWidget(parent), window_(window) {
        setObjectName("Splitter");
        setCursor(Qt::SizeHorCursor);
        setAutoFillBackground(true);
    }

  protected:
    void mousePressEvent(QMouseEvent* e) override {
        if (e->button() == Qt::LeftButton) SetColour(QColor(0x80, 0x80, 0x80));
        window_.Splitter_MouseDown(e->button() == Qt::LeftButton ? 1 : 2, X(e));
    }
    void mouseMoveEvent(QMouseEvent* e) override { window_.Splitter_MouseMove(X(e)); }
    void mouseReleaseEvent(QMouseEvent* e) override {
        SetColour(palette().color(QPalette::Button));
        window_.Splitter_MouseUp(X(e));
    }

  private:
    float X(QMouseEvent* e) const {
        return static_cast<float>(e->position().x()) * kTwipsPerInch /
               static_cast<float>(logicalDpiX());
    }
    void SetColour(const QColor& c) {
        QPalette p = palette();
        p.setColor(QPalette::Window, c);
        setPalette(p);
    }
    frmFileDiffs& window_;
};

} // namespace

QWidget* MakeSplitterHandle(frmFileDiffs& window, QWidget* parent) {
    return new SplitterHandle(window, parent);
}

float frmFileDiffs::Twips(int pixels) const {
    return static_cast<float>(pixels) * kTwipsPerInch / static_cast<float>(logicalDpiX());
}

int frmFileDiffs::Pixels(float twips) const {
    return RoundToInt32(static_cast<double>(twips) * logicalDpiX() / kTwipsPerInch);
}

// Opens at the design size of the client area, centred on the screen.
void frmFileDiffs::SizeToDesign() {
    const int menuHeight = menuWidget() ? menuWidget()->sizeHint().height() : 0;
    resize(Pixels(kDesignClientWidth), Pixels(kDesignClientHeight) + menuHeight);
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

void frmFileDiffs::resizeEvent(QResizeEvent* e) {
    QMainWindow::resizeEvent(e);
    Form_Resize();
}

void frmFileDiffs::Form_Resize() {
    if (isMinimized() || !client_) return;
    const float scrollBar = Twips(style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    const float outerWidth = Twips(frameGeometry().width());
    FormResize(regions_, outerWidth, Twips(client_->height()), scrollBar,
               session_.ViewOptions.OutputFormat != OutputFormat::OneWindow);
    PlaceRegions();
}

void frmFileDiffs::PlaceRegions() {
    auto place = [this](QWidget* w, const Region& r) {
        w->setGeometry(Pixels(r.Left), Pixels(r.Top), std::max(Pixels(r.Width), 0),
                       std::max(Pixels(r.Height), 0));
    };
    commands_->Toolbar()->setGeometry(0, 0, client_->width(), Pixels(kToolbarHeight));
    place(Animation1, kAnimation);
    place(pctContainer, kBarContainer);
    place(pctContainer->Bar(), kBar);
    Animation1->raise();
    place(cboOriginalFile, regions_.cboOriginalFile);
    place(cboRevisedFile, regions_.cboRevisedFile);
    place(grdOriginalFile, regions_.grdOriginalFile);
    place(grdRevisedFile, regions_.grdRevisedFile);
    place(Splitter, regions_.Splitter);
    place(rtfLineDiff[0], regions_.rtfLineDiff0);
    place(rtfLineDiff[1], regions_.rtfLineDiff1);
    if (ctlDiffReport) place(ctlDiffReport, regions_.ctlDiffReport);
    grdOriginalFile->setColumnWidth(0, Pixels(static_cast<float>(regions_.OriginalColWidth)));
    grdRevisedFile->setColumnWidth(0, Pixels(static_cast<float>(regions_.RevisedColWidth)));
}

void frmFileDiffs::Splitter_MouseDown(int button, float x) {
    const bool wasDragging = splitterDrag_.Dragging();
    splitterDrag_.MouseDown(regions_, button, x);
    if (wasDragging && !splitterDrag_.Dragging())
        Form_Resize();
    else
        PlaceRegions();
}

void frmFileDiffs::Splitter_MouseMove(float x) {
    splitterDrag_.MouseMove(regions_, x);
    Splitter->setGeometry(Pixels(regions_.Splitter.Left), Pixels(regions_.Splitter.Top),
                          Pixels(regions_.Splitter.Width), Pixels(regions_.Splitter.Height));
}

void frmFileDiffs::Splitter_MouseUp(float x) {
    if (splitterDrag_.MouseUp(regions_, x)) Form_Resize();
}

void frmFileDiffs::ApplyNewFont(const std::string& FontName, int FontSize, bool FontBold,
                                bool FontItalic) {
    for (const char* grid : {kGrdOriginalFile, kGrdRevisedFile}) {
        SetGridFontName(grid, FontName);
        SetGridFontSize(grid, FontSize);
        SetGridFontBold(grid, FontBold);
        SetGridFontItalic(grid, FontItalic);
    }
    ApplyReportFont();
}

bool frmFileDiffs::eventFilter(QObject* watched, QEvent* event) {
    // Only keys and drops matter here. Looking at anything else first would also touch the file
    // boxes while the window's children are being destroyed, one of them already gone.
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::DragEnter && type != QEvent::DragMove &&
        type != QEvent::Drop)
        return QMainWindow::eventFilter(watched, event);
    // With the focus on a file box the box gets the keys first and hands them to its editor
    // without a filter seeing them there, so both are watched for path completion.
    const bool fileBox = watched == cboOriginalFile || watched == cboRevisedFile ||
                         watched == cboOriginalFile->lineEdit() ||
                         watched == cboRevisedFile->lineEdit();
    if (type == QEvent::KeyPress && fileBox) {
        const QString text = static_cast<QKeyEvent*>(event)->text();
        modAutoCompletePath::KeyPress(text.size() == 1 ? text[0].unicode() : 0);
    }
    auto* box = qobject_cast<QComboBox*>(watched);
    if (box && (box == cboOriginalFile || box == cboRevisedFile)) {
        if (event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
            auto* e = static_cast<QDropEvent*>(event);
            if (e->mimeData()->hasText() || e->mimeData()->hasUrls()) e->acceptProposedAction();
            return true;
        }
        if (event->type() == QEvent::Drop) {
            auto* e = static_cast<QDropEvent*>(event);
            if (DropOnFileBox(*box, *e->mimeData())) e->acceptProposedAction();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace orvane
