#include "results/Commands.h"

#include "results/MenuTable.h"
#include "results/RunGate.h"
#include "results/ToolbarImages.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace orvane {

QString ItemName(const QString& name, int index) {
    return index < 0 ? name : QString("%1(%2)").arg(name).arg(index);
}

Commands::Commands(QMainWindow& window, QWidget& toolbarParent, RunGate& gate)
    : QObject(&window), gate_(gate) {
    BuildMenus(*window.menuBar());
    BuildToolbar(window, toolbarParent);
}

void Commands::BuildMenus(QMenuBar& bar) {
    QMenu* parents[4] = {nullptr, nullptr, nullptr, nullptr};
    for (std::size_t i = 0; i < std::size(kMenuTable); ++i) {
        const MenuEntry& e = kMenuTable[i];
        const bool hasChildren = i + 1 < std::size(kMenuTable) && kMenuTable[i + 1].level > e.level;
        if (e.level == 1) {
            parents[1] = bar.addMenu(e.caption);
            parents[1]->setObjectName(e.name);
            items_[e.name] = parents[1]->menuAction();
            continue;
        }
        QMenu* parent = parents[e.level - 1];
        if (QString(e.caption) == "-") {
            parent->addSeparator()->setObjectName(e.name);
            continue;
        }
        if (hasChildren) {
            parents[e.level] = parent->addMenu(e.caption);
            parents[e.level]->setObjectName(e.name);
            items_[e.name] = parents[e.level]->menuAction();
            continue;
        }
        QAction* action = parent->addAction(e.caption);
        action->setObjectName(e.name);
        action->setEnabled(false); // until a handler is connected
        if (*e.shortcut) action->setShortcut(QKeySequence(e.shortcut));
        items_[e.name] = action;
    }
}

void Commands::BuildToolbar(QMainWindow& window, QWidget& parent) {
    toolbar_ = new QToolBar("Main", &parent);
    toolbar_->setObjectName("tbrMain");
    toolbar_->setMovable(false);
    toolbar_->setFloatable(false);
    toolbar_->setIconSize(QSize(kToolbarImageSize, kToolbarImageSize));
    int place = 0;
    for (const ToolbarPlace& p : kToolbarTable) {
        ++place;
        if (p.image == 0) {
            buttons_.push_back(nullptr);
            toolbar_->addSeparator()->setObjectName(QString("tbrMain.place%1").arg(place));
            continue;
        }
        QAction* button = toolbar_->addAction(ToolbarIcon(p.image), p.toolTip);
        button->setObjectName(QString("tbrMain.place%1").arg(place));
        button->setToolTip(p.toolTip);
        const QString command = p.command;
        connect(button, &QAction::triggered, this, [this, command, &window] {
            if (command.isEmpty())
                window.close();
            else if (QAction* item = Item(command))
                item->trigger();
        });
        buttons_.push_back(button);
        if (!command.isEmpty()) buttonOf_[command] = button;
    }
}

QAction* Commands::Item(const QString& name, int index) const {
    const auto it = items_.find(ItemName(name, index));
    return it == items_.end() ? nullptr : it->second;
}

QAction* Commands::Button(int place) const {
    return place >= 1 && place <= static_cast<int>(buttons_.size()) ? buttons_[place - 1] : nullptr;
}

void Commands::On(const QString& name, std::function<void()> fn, int index) {
    QAction* item = Item(name, index);
    if (!item) return;
    Attach(name, *item, [this, item, fn = std::move(fn)] {
        if (gate_.Busy()) {
            // Turned away: a checkable item must not show a choice that was not taken.
            if (item->isCheckable()) item->setChecked(!item->isChecked());
            return;
        }
        RunGate::Hold run(gate_);
        fn();
    });
}

void Commands::OnAlways(const QString& name, std::function<void()> fn) {
    if (QAction* item = Item(name)) Attach(name, *item, std::move(fn));
}

void Commands::Attach(const QString& name, QAction& item, std::function<void()> fn) {
    connect(&item, &QAction::triggered, this, std::move(fn));
    item.setEnabled(true);
    handled_.insert(name);
}

void Commands::Enable(const QString& name, bool on) {
    on = on && handled_.count(name);
    if (QAction* item = Item(name)) item->setEnabled(on);
    const auto it = buttonOf_.find(name);
    if (it != buttonOf_.end()) it->second->setEnabled(on);
}

} // namespace orvane
