#pragma once

#include <string_view>

namespace html {

// The HTML standard's "prescan a byte stream to determine its encoding": a UTF-16 XML
// declaration, else the first <meta charset> or <meta http-equiv="content-type" content=...>
// that names a known encoding, skipping comments and other tags. Returns the encoding name,
// or an empty view when there is none. The whole input is scanned, as the file is local;
// running off the end inside a tag gives no result, as a browser would wait for more bytes.
std::string_view PrescanForEncoding(std::string_view bytes);

// The "extract a character encoding from a meta element" step on a content attribute value:
// the encoding after "charset=", or an empty view.
std::string_view ExtractEncodingFromMetaContent(std::string_view content);

} // namespace html
