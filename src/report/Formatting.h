#pragma once
// The formatting an atom inherits (bold, italic, link target, heading level, style, ...), so
// that equal words whose look changed can be marked with what changed.
#include "intake/html/Dom.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::report {

class FormattingCache {
  public:
    // Sorted descriptions such as "Bold" or "Link to x.html", up to the nearest block, and that
    // block's heading level.
    const std::vector<std::string>& Of(const html::Node* node);

  private:
    std::unordered_map<const html::Node*, std::vector<std::string>> cache_;
};

// "Bold added; Link to a.html removed", empty when the two are the same.
std::string DescribeChange(const std::vector<std::string>& before,
                           const std::vector<std::string>& after);

} // namespace orvane::report
