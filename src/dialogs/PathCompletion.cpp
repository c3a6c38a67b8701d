#include "dialogs/PathCompletion.h"

#include "dialogs/AutoCompletePath.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace orvane {
namespace {

class LineEditControl : public PathControl {
  public:
    explicit LineEditControl(QLineEdit& edit) : edit_(edit) {}
    std::string Text() const override { return edit_.text().toStdString(); }
    void SetText(const std::string& t) override { edit_.setText(QString::fromStdString(t)); }
    void Select(long s, long l) override {
        edit_.setSelection(static_cast<int>(s), static_cast<int>(l));
    }

  private:
    QLineEdit& edit_;
};

class KeyWatch : public QObject {
  public:
    explicit KeyWatch(QLineEdit& edit) : QObject(&edit) {
        setObjectName("PathCompletion");
        edit.installEventFilter(this);
        connect(&edit, &QLineEdit::textEdited, this, [&edit] {
            LineEditControl control(edit);
            modAutoCompletePath::AutoCompletePath(control);
        });
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const QString text = static_cast<QKeyEvent*>(event)->text();
            modAutoCompletePath::KeyPress(text.size() == 1 ? text[0].unicode() : 0);
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void AttachPathCompletion(QLineEdit& edit) {
    if (edit.findChild<KeyWatch*>("PathCompletion", Qt::FindDirectChildrenOnly)) return;
    new KeyWatch(edit);
}

} // namespace orvane
