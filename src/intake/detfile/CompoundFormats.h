#pragma once
// OLE2 compound files, the container of the legacy office formats: the member is told by the
// names of the streams in the file's directory ("WordDocument", "Workbook", ...).
#include "intake/detfile/FileSample.h"
#include "intake/detfile/FormatNames.h"

namespace orvane::detfile {

// The member of the compound file family; the file begins with the compound file signature.
FormatName ClassifyCompound(const FileSample& file);

} // namespace orvane::detfile
