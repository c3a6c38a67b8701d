#include "intake/detfile/FormatInfo.h"

#include "frame/ErrorReporter.h"
#include "intake/Formats.h"

namespace orvane {

FileFormatInfo GetFileFormatInfo(const std::string& Path) {
    FileFormatInfo info;
    try {
        std::string reason;
        modConvertFormats::GetFormatOfFile(Path, info.Format, info.Description, reason);
        info.RegisteredAs = modFileTypes::GetFileType(Path);
        info.Icon = modFileTypes::GetFileIcon(Path);
    } catch (...) {
        // The dialogue's routine has always reported under its old form's name.
        ReportUnexpectedError("frmFileConverters.DisplayFormatInfo");
    }
    return info;
}

} // namespace orvane
