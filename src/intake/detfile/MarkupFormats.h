#pragma once
// Pages and other markup told by what they begin with, as a browser's tokenizer reads it: after
// a byte order mark, white space and comments, a DOCTYPE or the first tag decides. HTML's tag
// names are matched in any letter case; an XML declaration makes the page XHTML, SVG or XML.
#include "intake/detfile/FormatNames.h"

#include <optional>
#include <string_view>

namespace orvane::detfile {

std::optional<FormatName> ClassifyMarkup(std::string_view head);

// The elements of HTML, obsolete ones included, and custom elements ("my-widget"); lower case.
bool IsHtmlElementName(std::string_view name);

} // namespace orvane::detfile
