#include "compare/Words.h"

#include "frame/RuntimeError.h"

#include <algorithm>

namespace orvane::strutil {
namespace {

constexpr long kEmptyDelimiter = 1;
thread_local long lastError = 0;

} // namespace

long ParseWords(std::u32string_view text, std::u32string_view delimiter, WordTable& words) {
    words.clear();
    if (delimiter.empty()) {
        lastError = kEmptyDelimiter;
        return -1;
    }
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t at = std::min(text.find(delimiter, start), text.size());
        if (at > start) {
            if (words.size() == kWordTableSize) throw RuntimeError(err::SubscriptOutOfRange);
            words.emplace_back(text.substr(start, at - start));
        }
        start = at + delimiter.size();
    }
    return static_cast<long>(words.size());
}

std::int32_t WordValue(std::u32string_view word) {
    // FNV-1a over the code points, then a final mix so that short words spread over all bits.
    std::uint64_t h = 0xcbf29ce484222325ull;
    for (char32_t c : word) {
        h ^= c;
        h *= 0x100000001b3ull;
    }
    h ^= h >> 33;
    h *= 0xff51afd7ed558ccdull;
    h ^= h >> 33;
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(h));
}

long LastErrorCode() {
    return lastError;
}

std::string ErrorText(long number) {
    if (number == 0) return "No error";
    if (number == kEmptyDelimiter) return "The delimiter is empty";
    return "Unknown error " + std::to_string(number);
}

} // namespace orvane::strutil
