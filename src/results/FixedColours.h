#pragma once
#include <QPalette>
#include <QWidget>

namespace orvane {

// The row colours and the detail pane's red are fixed, so the text and the ground under them
// are too: a dark desktop theme would otherwise put its light text on the light rows.
inline void UseFixedColours(QWidget& view) {
    QPalette p = view.palette();
    p.setColor(QPalette::Base, Qt::white);
    p.setColor(QPalette::Text, Qt::black);
    view.setPalette(p);
}

} // namespace orvane
