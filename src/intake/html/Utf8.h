#pragma once
// The parser decodes and encodes with the program's one text codec.
#include "text/Utf8.h"

namespace html {

using orvane::text::AppendUtf8;
using orvane::text::DecodeUtf8;
using orvane::text::EncodeUtf8;
using orvane::text::IsValidUtf8;

} // namespace html
