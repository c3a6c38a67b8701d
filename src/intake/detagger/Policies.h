#pragma once
// The detagger's named policies. Names are the fixed English phrases callers pass; values are
// "Yes", "No" or a decimal number. Unset policies keep the defaults below, which retain the
// page's own line structure: a paragraph breaks where its source lines break, and no width is
// imposed.
#include <string>
#include <string_view>

namespace detagger {

struct Policies {
    bool addUrlReferences = false;     // "Add URL references at end of file"
    bool displayLinkUrls = false;      // "Display link URLs"
    bool allow8Bit = true;             // "Allow 8-bit ANSI values in output"
    bool allowAlternatives = true;     // "Allow ANSI alternatives (e.g. space for &nbsp;)"
    bool singleLineParagraphs = false; // "Output each paragraph on a single line"
    bool imposePageWidth = false;      // "Impose a page width on the output"
    int pageWidth = 79;                // "Target Page width"
};

// The engine's error codes, as its callers' table numbers them.
enum ErrorCode : int {
    kNoError = 0,
    kApiCallNotMade = 1,
    kNullArgument = 2,
    kBufferTooSmall = 3,
    kPolicyLoadFailed = 4,
    kFileNotFound = 5,
    kFileNotOpened = 6,
    kConversionFailed = 7,
    kNoHtmlFile = 8,
    kNoTextFile = 9,
    kUnknownPolicy = 10,
    kInvalidPolicyValue = 11,
};

// kNoError, kUnknownPolicy or kInvalidPolicyValue; on an error the policies are unchanged.
ErrorCode SetPolicy(Policies& policies, std::string_view name, std::string_view value);

// The value as SetPolicy would accept it back ("Yes", "No", "79"); false for an unknown name.
bool GetPolicy(const Policies& policies, std::string_view name, std::string& value);

} // namespace detagger
