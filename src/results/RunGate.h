#pragma once
// A comparison, a long detail line, a viewer or a print lets events run so that the window keeps
// painting. While one runs, the user's input to the window is held back and its commands are
// turned away: either would reach state the run is using. A close waits for the run to end, and
// Esc still cancels a download, the one part of a run that can be cut short.
#include <QObject>

class QWidget;

namespace orvane {

class RunGate : public QObject {
  public:
    explicit RunGate(QWidget& window);

    bool Busy() const { return depth_ > 0; }
    // A close asked for while a run is busy: true when it has to wait, and it then follows once
    // the outermost run has returned.
    bool CloseWhenIdle();

    // Marks a run for its lifetime; runs nest.
    class Hold {
      public:
        explicit Hold(RunGate& gate);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        RunGate& gate_;
    };

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool InWindow(QObject* target) const;

    QWidget& window_;
    int depth_ = 0;
    bool closePending_ = false;
};

} // namespace orvane
