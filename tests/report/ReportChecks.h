#pragma once
// What a reader sees in a report, read back through our parser: the visible text with the
// report's own chrome left out and one kind of mark dropped, and the structural rules the marks
// must keep.
#include "intake/html/Dom.h"

#include <string>

namespace orvane::test {

enum class Drop { None, Inserted, Deleted };

// Visible text of a page's body, every white space character removed. Report chrome (class
// orvane-chrome) and the dropped kind of mark are left out.
std::u32string VisibleText(const std::string& html, Drop drop);

// Empty when the marks keep the rules; else the first fault found, for the test message: every
// `ins`/`del` written is an element after parsing (nothing misnested), none is a direct child of
// a table, row, section or list, none holds a block, and no script, handler or refresh is left.
std::string StructureFault(const std::string& report);

int CountOf(const std::string& text, const std::string& what);

// The report without its navigation links and line breaks, for matching marks in tests.
std::string WithoutNavigation(std::string report);

} // namespace orvane::test
