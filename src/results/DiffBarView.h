#pragma once
// The difference bar on screen: a container that carries the red mark of the current row in its
// margins, and the bar on it that carries one band per difference.
#include "results/DiffBar.h"

#include <QWidget>

namespace orvane {

class DiffBarView : public QWidget {
    Q_OBJECT
  public:
    explicit DiffBarView(QWidget* parent);
    QWidget* Bar() const { return bar_; }
    // Height of the bar in pixels: its scale.
    int BarHeight() const;
    // Empties bar and container; the bar shows the button face colour.
    void Clear();
    void ShowBands(std::vector<BarBand> bands);
    void ShowMark(int y);
    int MarkY() const { return markY_; }
    const std::vector<BarBand>& Bands() const { return bands_; }
    bool Drawn() const { return drawn_; }

  signals:
    void Pressed(float y);

  protected:
    void paintEvent(QPaintEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* bar_;
    std::vector<BarBand> bands_;
    bool drawn_ = false;
    int markY_ = -1;
};

} // namespace orvane
