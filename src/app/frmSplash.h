#pragma once
#include <QWidget>
#include <functional>

class QLabel;
class QTimer;

namespace orvane {

// Shown for two seconds, or until its image is clicked, before the main window.
class frmSplash : public QWidget {
    Q_OBJECT
  public:
    explicit frmSplash(std::function<void()> loadNextForm, QWidget* parent = nullptr);
    void Form_Load();
    void Timer1_Timer();
    QTimer* Timer1() const { return timer_; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void LoadNextForm();

    std::function<void()> loadNextForm_;
    QLabel* imgLogo_;
    QTimer* timer_;
};

} // namespace orvane
