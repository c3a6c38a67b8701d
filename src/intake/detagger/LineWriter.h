#pragma once
// Blocks into lines: the single-line and page-width policies, indents and list markers, the
// character policies, and the list of link references at the end.
#include "intake/detagger/Policies.h"
#include "intake/detagger/TextBlocks.h"

#include <string>

namespace detagger {

// UTF-8 text with CR LF line ends.
std::string WriteLines(const Layout& layout, const Policies& policies);

} // namespace detagger
