#pragma once
// Binary and document formats told by the bytes they begin with.
#include "intake/detfile/FileSample.h"
#include "intake/detfile/FormatNames.h"

#include <optional>

namespace orvane::detfile {

std::optional<FormatName> MatchSignature(const FileSample& file);

} // namespace orvane::detfile
