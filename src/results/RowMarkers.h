#pragma once
#include "results/FlexGrid.h"

#include <QPixmap>

namespace orvane {

// The 10 by 8 pictures that mark the current row and bookmarks; null for CellPictureId::None.
QPixmap RowMarker(CellPictureId picture);

} // namespace orvane
