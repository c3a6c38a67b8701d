#pragma once

#include "intake/html/ParseError.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace html {

struct Location {
    std::size_t line;   // 1-based
    std::size_t column; // 1-based, in characters
};

// The input stream as the tokenizer sees it: CR LF and lone CR folded to LF, and the
// characters the standard flags on input (surrogates, noncharacters, controls) noted as
// parse errors. Values above U+10FFFF cannot come from a decoder and become U+FFFD.
class InputStream {
  public:
    explicit InputStream(std::u32string_view raw);

    std::u32string_view Text() const { return text_; }
    const std::vector<ParseError>& Errors() const { return errors_; }
    Location LocationOf(std::size_t offset) const;

  private:
    void Append(char32_t c);

    std::u32string text_;
    std::vector<std::size_t> lineStarts_;
    std::vector<ParseError> errors_;
};

} // namespace html
