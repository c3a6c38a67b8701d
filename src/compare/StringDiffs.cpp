#include "compare/StringDiffs.h"

#include "compare/Words.h"
#include "compare/lcs/CodePoints.h"
#include "compare/lcs/FirstLastDiff.h"
#include "compare/lcs/Lcs.h"
#include "frame/ErrorReporter.h"

#include <span>
#include <string>
#include <vector>

namespace orvane::modDiff {
namespace {

std::u32string Prepared(std::u32string_view text, bool IgnoreCase) {
    return IgnoreCase ? lcs::UpperCased(text) : std::u32string(text);
}

// The pair of lines for the detail file; nothing when even that cannot be built.
std::string BothLines(std::u32string_view Text1, std::u32string_view Text2) {
    try {
        return lcs::EncodeUtf8(Text1) + "\r\n" + lcs::EncodeUtf8(Text2);
    } catch (...) {
        return {};
    }
}

// Runs the table on the middle ranges and copies their marks into place.
std::int32_t CompareMiddle(std::u32string_view a, std::u32string_view b,
                           const lcs::FirstLastDiff& ends, std::size_t middleA, std::size_t middleB,
                           Marks& Marks1, Marks& Marks2, const std::function<void()>& yield) {
    const std::span<const char32_t> midA(a.data() + ends.FirstA, middleA);
    const std::span<const char32_t> midB(b.data() + ends.FirstB, middleB);
    Marks tempA, tempB;
    lcs::ExactLcsOptions options;
    options.yield = yield;
    const std::size_t length = lcs::LcsMarks(midA, midB, tempA, tempB, options);
    for (std::size_t i = 0; i < middleA; ++i)
        Marks1[ends.FirstA + i] = tempA[i];
    for (std::size_t j = 0; j < middleB; ++j)
        Marks2[ends.FirstB + j] = tempB[j];
    return static_cast<std::int32_t>(length);
}

struct WordElement {
    std::int32_t Value;
    std::u32string_view Text; // settles the rare case of two words with one value
    bool operator==(const WordElement&) const = default;
};

struct WordElementHash {
    std::size_t operator()(const WordElement& w) const {
        return static_cast<std::uint32_t>(w.Value);
    }
};

std::vector<WordElement> SplitIntoWords(std::u32string_view text, strutil::WordTable& table) {
    if (strutil::ParseWords(text, U" ", table) == -1) {
        const long code = strutil::LastErrorCode();
        throw RuntimeError(code, "Dx - " + strutil::ErrorText(code));
    }
    std::vector<WordElement> words;
    words.reserve(table.size());
    for (const std::u32string& word : table)
        words.push_back({strutil::WordValue(word), word});
    return words;
}

} // namespace

std::int32_t StringDiffsCharLevel(std::u32string_view Text1, std::u32string_view Text2,
                                  bool IgnoreCase, Marks& Marks1, Marks& Marks2,
                                  const std::function<void()>& yield) {
    std::int32_t result = 0;
    try {
        const std::u32string a = Prepared(Text1, IgnoreCase), b = Prepared(Text2, IgnoreCase);
        Marks1.assign(a.size(), false);
        Marks2.assign(b.size(), false);
        const lcs::FirstLastDiff ends = lcs::GetLocFirstLastDiff<char32_t>(a, b, Marks1, Marks2);
        if (ends.Finished) return 0;
        const std::ptrdiff_t middleA =
            ends.LastA == -1 ? std::ssize(a) - ends.FirstA : ends.LastA - ends.FirstA + 1;
        const std::ptrdiff_t middleB =
            ends.LastB == -1 ? std::ssize(b) - ends.FirstB : ends.LastB - ends.FirstB + 1;
        if (middleA < 1) {
            for (std::ptrdiff_t i = ends.FirstB; i < ends.LastB; ++i)
                Marks2[i] = false;
            return 0;
        }
        if (middleB < 1) {
            for (std::ptrdiff_t i = ends.FirstA; i < ends.LastA; ++i)
                Marks1[i] = false;
            return 0;
        }
        result = CompareMiddle(a, b, ends, static_cast<std::size_t>(middleA),
                               static_cast<std::size_t>(middleB), Marks1, Marks2, yield);
    } catch (...) {
        const ErrorInfo error = CurrentErrorInfo();
        const bool withLines =
            error.Number == err::SubscriptOutOfRange || error.Number == err::OutOfMemory;
        ReportUnexpectedError("modDiff.StringDiffsCharLevel()",
                              withLines ? BothLines(Text1, Text2) : std::string(), error);
    }
    return result;
}

std::int32_t StringDiffsWordLevel(std::u32string_view Text1, std::u32string_view Text2,
                                  bool IgnoreCase, Marks& Marks1, Marks& Marks2) {
    std::int32_t result = 0;
    Marks1.clear();
    Marks2.clear();
    try {
        const std::u32string a = Prepared(Text1, IgnoreCase), b = Prepared(Text2, IgnoreCase);
        strutil::WordTable table1, table2;
        const std::vector<WordElement> words1 = SplitIntoWords(a, table1);
        const std::vector<WordElement> words2 = SplitIntoWords(b, table2);
        Marks temp1, temp2;
        result = static_cast<std::int32_t>(
            lcs::LcsMarks<WordElement, WordElementHash>(words1, words2, temp1, temp2));
        if (!words1.empty()) Marks1 = std::move(temp1);
        if (!words2.empty()) Marks2 = std::move(temp2);
    } catch (...) {
        const ErrorInfo error = CurrentErrorInfo();
        ReportUnexpectedError("modDiff.StringDiffsWordLevel()",
                              error.Number == err::SubscriptOutOfRange ? BothLines(Text1, Text2)
                                                                       : std::string(),
                              error);
    }
    return result;
}

} // namespace orvane::modDiff
