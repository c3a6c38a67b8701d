#pragma once
// The lists of inputs last compared, one per side, most recent first, twenty places each, kept in
// the settings file at once after each good comparison.
#include "settings/ViewOptions.h"

#include <string>
#include <vector>

namespace orvane {

inline constexpr int kRecentFilePlaces = 20;

// "Enter Original HTML file here" / "Enter Revised HTML file here".
const char* FileBoxFiller(Side side);

// The stored entries in place order, without empty places and without the filler text.
std::vector<std::string> ReadRecentFiles(Side side);

// Puts `input` at place 1 and moves the others down; an entry equal to it without regard to case
// drops out, and the last place falls off a full list.
void PushRecentFile(Side side, const std::string& input);

// Equality of the lists: without regard to (ASCII) letter case.
bool SameRecentFile(const std::string& a, const std::string& b);

} // namespace orvane
