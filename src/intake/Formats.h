#pragma once
// What a local file is, in the words the rest of the program decides by: a format code and a
// description, from the file's name, else from the recogniser library, else from a last test of
// whether the file is plain text. The code then decides how text is taken from the file.
#include <cstdint>
#include <string>

namespace orvane::modConvertFormats {

// "HTML" for names "htm*.tmp" (downloaded pages) and extensions "htm*", without opening the
// file; else the recogniser's answer, with an unknown format that passes the text test made
// "ASC". False with a user's reason (lines joined by "\r\n") when the format stays a failure
// code, which Format and Description then hold.
bool GetFormatOfFile(const std::string& Path, std::string& Format, std::string& Description,
                     std::string& FailureReason);

// Both files in turn, stopping at the first that fails; the reason names the file's role.
bool GetFormatOfBothFiles(const std::string& OriginalPath, const std::string& RevisedPath,
                          std::string& OriginalFormat, std::string& OriginalDescription,
                          std::string& RevisedFormat, std::string& RevisedDescription,
                          std::string& FailureReason);

// Conversion methods.
inline constexpr std::int32_t kHtmlConversion = 1;
inline constexpr std::int32_t kNoConversion = 0;
inline constexpr std::int32_t kNoTextFromFormat = -1;

// 1 for codes like "HTM*", 0 for "ASC", -1 for all others, in any letter case. Path is unused.
std::int32_t GetConversionMethodForFormat(const std::string& Path, const std::string& Format);

// Wildcard match in any letter case: '*' for any run of characters, '?' for one.
bool MatchesPattern(const std::string& Text, const std::string& Pattern);

} // namespace orvane::modConvertFormats
