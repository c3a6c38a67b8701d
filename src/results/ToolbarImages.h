#pragma once
#include <QIcon>

namespace orvane {

inline constexpr int kToolbarImageSize = 20;

// Toolbar image 1..16 with its three looks: normal at rest, hot under the pointer, greyed when
// the command is not available.
QIcon ToolbarIcon(int image);

} // namespace orvane
