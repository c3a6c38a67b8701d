#pragma once
// Elements written into the report, made inert: no scripts, no event handlers, no script
// addresses, no refresh or base; addresses made absolute; the page's own ins and del turned
// into spans so that those two elements mean only the report's marks.
#include "intake/html/Dom.h"
#include "report/Markup.h"

#include <string>

namespace orvane::report {

bool IsVoid(const html::Node& element);
// Elements whose text is written as it stands (style).
bool IsRawText(const html::Node& element);

void AppendStartTag(std::string& out, const html::Node& element, const PageBase& base);
void AppendEndTag(std::string& out, const html::Node& element);

// An element and everything in it, cleaned; for replaced elements and unchanged copies.
void AppendSubtree(std::string& out, const html::Node& node, const PageBase& base);

// The visible stand-in for an embedded frame or object.
void AppendPlaceholder(std::string& out, const html::Node& element, const PageBase& base);

} // namespace orvane::report
