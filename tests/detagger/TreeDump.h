#pragma once
// The tree in html5lib's test format ("| <html>", indented two spaces a level), so our trees
// compare line for line with the conformance data.
#include "intake/html/Dom.h"

#include <string>

namespace orvane::test {

std::string DumpTree(const html::Node* root);

} // namespace orvane::test
