#pragma once
// One line of the detail pane: black text with red spans, scrolled sideways. Only the characters
// in sight are laid out and drawn, so a line of many megabytes shows as fast as a short one; the
// positions of the rest come from per-character advances summed block by block.
#include <QAbstractScrollArea>
#include <QString>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orvane {

// A red stretch of the shown text, in UTF-16 units, half-open.
struct RedSpan {
    qsizetype From = 0;
    qsizetype To = 0;
};

class LineDetailView : public QAbstractScrollArea {
    Q_OBJECT
  public:
    explicit LineDetailView(const QString& name, QWidget* parent = nullptr);

    // Shows `text` from its start, black but for `spans` (sorted, not overlapping).
    void SetLine(QString text, std::vector<RedSpan> spans);
    void Clear() { SetLine({}, {}); }

    const QString& Text() const { return text_; }
    bool IsRed(qsizetype at) const;
    // The characters at least partly in sight, half-open, in UTF-16 units.
    std::pair<qsizetype, qsizetype> VisibleSpan() const;
    // Width of the whole line in pixels, and the scrolled offset.
    double LineWidth() const { return blockX_.empty() ? 0 : blockX_.back(); }
    int ScrollX() const;
    void ScrollToX(int x);

  protected:
    void paintEvent(QPaintEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;
    void changeEvent(QEvent* e) override;
    void wheelEvent(QWheelEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    double Advance(qsizetype at) const;
    qsizetype Next(qsizetype at) const;
    void Measure();
    void UpdateRange();
    // The first character whose right edge passes x, and the x of its left edge.
    std::pair<qsizetype, double> CharAt(double x) const;
    void DrawSpan(class QPainter& p, qsizetype from, qsizetype to, double& x, bool red) const;

    QString text_;
    std::vector<RedSpan> spans_;
    std::vector<double> blockX_; // x at the start of each block, and the end of the line
    mutable std::vector<float> bmpAdvance_;
    mutable std::unordered_map<char32_t, double> otherAdvance_;
    int dragX_ = 0;
};

} // namespace orvane
