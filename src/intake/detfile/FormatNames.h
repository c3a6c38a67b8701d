#pragma once
// Every answer the recogniser can give, in one place, so that the field limits of the C
// interface are checked when the library is built rather than found cut short at run time.
#include "intake/detfile/detfile.h"

#include <string_view>

namespace orvane::detfile {

struct FormatName {
    std::string_view code;
    std::string_view description;

    bool operator==(const FormatName&) const = default;
};

namespace names {
// Failures.
inline constexpr FormatName Empty{"!EMPTY", "Empty File"};
inline constexpr FormatName OpenError{"!FERR", "Error Opening File"};
inline constexpr FormatName Unknown{"!UNK", "Unknown Format"};
// Pages and text.
inline constexpr FormatName Html{"HTML", "HTML Document"};
inline constexpr FormatName Xhtml{"HTML", "XHTML Document"};
inline constexpr FormatName AsciiText{"ASC", "ASCII Text"};
inline constexpr FormatName Utf8Text{"ASC", "Unicode Text (UTF-8)"};
inline constexpr FormatName Utf16Text{"ASC", "Unicode Text (UTF-16)"};
inline constexpr FormatName AnsiText{"ASC", "ANSI Text (Windows-1252)"};
inline constexpr FormatName Svg{"SVG", "Scalable Vector Graphics (SVG) Image"};
inline constexpr FormatName Xml{"XML", "XML Document"};
// Documents.
inline constexpr FormatName Pdf{"PDF", "Adobe Portable Document Format (PDF)"};
inline constexpr FormatName PostScript{"PS", "PostScript Document"};
inline constexpr FormatName Rtf{"RTF", "Rich Text Format (RTF) Document"};
inline constexpr FormatName Docx{"DOCX", "Word Document (Office Open XML)"};
inline constexpr FormatName Xlsx{"XLSX", "Excel Workbook (Office Open XML)"};
inline constexpr FormatName Pptx{"PPTX", "PowerPoint Presentation (Office Open XML)"};
inline constexpr FormatName Ooxml{"OOXML", "Office Open XML Document"};
inline constexpr FormatName Odt{"ODT", "OpenDocument Text"};
inline constexpr FormatName Ods{"ODS", "OpenDocument Spreadsheet"};
inline constexpr FormatName Odp{"ODP", "OpenDocument Presentation"};
inline constexpr FormatName Odg{"ODG", "OpenDocument Drawing"};
inline constexpr FormatName Epub{"EPUB", "EPUB Electronic Book"};
inline constexpr FormatName Doc{"DOC", "Word Document (Word 97-2003)"};
inline constexpr FormatName Xls{"XLS", "Excel Workbook (Excel 97-2003)"};
inline constexpr FormatName Ppt{"PPT", "PowerPoint Presentation (PowerPoint 97-2003)"};
inline constexpr FormatName Msg{"MSG", "Outlook Message"};
inline constexpr FormatName Ole2{"OLE2", "OLE2 Compound Document"};
// Archives.
inline constexpr FormatName Zip{"ZIP", "ZIP Archive"};
inline constexpr FormatName Jar{"JAR", "Java Archive"};
inline constexpr FormatName Gzip{"GZIP", "Gzip Compressed Data"};
inline constexpr FormatName Bzip2{"BZIP2", "Bzip2 Compressed Data"};
inline constexpr FormatName Xz{"XZ", "XZ Compressed Data"};
inline constexpr FormatName SevenZip{"7Z", "7-Zip Archive"};
inline constexpr FormatName Rar{"RAR", "RAR Archive"};
// Images.
inline constexpr FormatName Png{"PNG", "Portable Network Graphics (PNG) Image"};
inline constexpr FormatName Jpeg{"JPEG", "JPEG Image"};
inline constexpr FormatName Gif{"GIF", "Graphics Interchange Format (GIF) Image"};
inline constexpr FormatName Webp{"WEBP", "WebP Image"};
inline constexpr FormatName Bmp{"BMP", "Windows Bitmap Image"};
inline constexpr FormatName Ico{"ICO", "Windows Icon"};
inline constexpr FormatName Tiff{"TIFF", "TIFF Image"};
inline constexpr FormatName Avif{"AVIF", "AVIF Image"};
inline constexpr FormatName Heic{"HEIC", "HEIF Image"};
inline constexpr FormatName Psd{"PSD", "Adobe Photoshop Image"};
// Sound, video and fonts.
inline constexpr FormatName Mp3{"MP3", "MP3 Audio"};
inline constexpr FormatName Mp4{"MP4", "MPEG-4 Media"};
inline constexpr FormatName Ogg{"OGG", "Ogg Media"};
inline constexpr FormatName Wav{"WAV", "Wave Audio"};
inline constexpr FormatName Avi{"AVI", "AVI Video"};
inline constexpr FormatName Webm{"WEBM", "WebM or Matroska Media"};
inline constexpr FormatName Flac{"FLAC", "FLAC Audio"};
inline constexpr FormatName Woff{"WOFF", "Web Open Font Format (WOFF)"};
inline constexpr FormatName Woff2{"WOFF2", "Web Open Font Format 2 (WOFF2)"};
inline constexpr FormatName TrueType{"TTF", "TrueType Font"};
inline constexpr FormatName OpenType{"OTF", "OpenType Font"};
// Programs and data.
inline constexpr FormatName Exe{"EXE", "Windows Executable"};
inline constexpr FormatName Dll{"DLL", "Windows Dynamic Link Library"};
inline constexpr FormatName Elf{"ELF", "ELF Executable or Shared Library"};
inline constexpr FormatName MachO{"MACHO", "Mach-O Executable"};
inline constexpr FormatName Wasm{"WASM", "WebAssembly Module"};
inline constexpr FormatName Sqlite{"SQLITE", "SQLite Database"};
} // namespace names

inline constexpr FormatName kAllFormats[] = {
    names::Empty,     names::OpenError, names::Unknown,    names::Html,     names::Xhtml,
    names::AsciiText, names::Utf8Text,  names::Utf16Text,  names::AnsiText, names::Svg,
    names::Xml,       names::Pdf,       names::PostScript, names::Rtf,      names::Docx,
    names::Xlsx,      names::Pptx,      names::Ooxml,      names::Odt,      names::Ods,
    names::Odp,       names::Odg,       names::Epub,       names::Doc,      names::Xls,
    names::Ppt,       names::Msg,       names::Ole2,       names::Zip,      names::Jar,
    names::Gzip,      names::Bzip2,     names::Xz,         names::SevenZip, names::Rar,
    names::Png,       names::Jpeg,      names::Gif,        names::Webp,     names::Bmp,
    names::Ico,       names::Tiff,      names::Avif,       names::Heic,     names::Psd,
    names::Mp3,       names::Mp4,       names::Ogg,        names::Wav,      names::Avi,
    names::Webm,      names::Flac,      names::Woff,       names::Woff2,    names::TrueType,
    names::OpenType,  names::Exe,       names::Dll,        names::Elf,      names::MachO,
    names::Wasm,      names::Sqlite};

constexpr bool FitsTheFields(const FormatName& f) {
    return !f.code.empty() && f.code.size() < DETFILE_FORMAT_FIELD &&
           f.description.size() < DETFILE_DESCRIPTION_FIELD;
}

constexpr bool AllFitTheFields() {
    for (const FormatName& f : kAllFormats)
        if (!FitsTheFields(f)) return false;
    return true;
}

static_assert(AllFitTheFields(), "a format code or description is too long for its field");

} // namespace orvane::detfile
