#pragma once
// ZIP archives and the document formats built on them: the office formats are told by the names
// of their parts, OpenDocument and EPUB by the "mimetype" entry they must begin with.
#include "intake/detfile/FileSample.h"
#include "intake/detfile/FormatNames.h"

namespace orvane::detfile {

// The member of the ZIP family; the file begins with a local file header.
FormatName ClassifyZip(const FileSample& file);

} // namespace orvane::detfile
