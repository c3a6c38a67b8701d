#pragma once
// The window's menu bar and toolbar, built from the command tables; items are found by name.
#include <QObject>
#include <QString>
#include <functional>
#include <map>
#include <set>
#include <vector>

class QAction;
class QMainWindow;
class QMenuBar;
class QToolBar;
class QWidget;

namespace orvane {

class RunGate;

class Commands : public QObject {
    Q_OBJECT
  public:
    // The toolbar goes on `toolbarParent`, the window's client area. While `gate` is busy every
    // command is turned away, except closing, which the window defers.
    Commands(QMainWindow& window, QWidget& toolbarParent, RunGate& gate);

    // A menu item by name, with its index for a control array member; null when there is none.
    QAction* Item(const QString& name, int index = -1) const;
    // Toolbar button by place (1-based, separators counted); null for a separator.
    QAction* Button(int place) const;
    QToolBar* Toolbar() const { return toolbar_; }

    // Runs `fn` when the item is chosen and no run is busy; `fn` is a run of its own.
    void On(const QString& name, std::function<void()> fn, int index = -1);
    // Runs `fn` whenever the item is chosen: for closing, which is safe at any time.
    void OnAlways(const QString& name, std::function<void()> fn);
    // Sets a command's availability: its menu item and its toolbar button together. A command
    // with nothing behind it yet stays off, so that no button pretends.
    void Enable(const QString& name, bool on);

  private:
    void BuildMenus(QMenuBar& bar);
    void BuildToolbar(QMainWindow& window, QWidget& parent);
    // Puts `fn` behind the item and makes the command available.
    void Attach(const QString& name, QAction& item, std::function<void()> fn);

    std::map<QString, QAction*> items_;
    std::vector<QAction*> buttons_; // by place - 1
    std::map<QString, QAction*> buttonOf_;
    std::set<QString> handled_;
    QToolBar* toolbar_ = nullptr;
    RunGate& gate_;
};

// Object name of a control array member: "name(i)".
QString ItemName(const QString& name, int index);

} // namespace orvane
