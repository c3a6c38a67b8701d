#include "intake/html/ParseError.h"

#include <array>

namespace html {

std::string_view ParseErrorName(ParseErrorCode code) {
    static constexpr std::array kNames{
#define HTML_ERROR_NAME(id, text) std::string_view(text),
        HTML_TOKENIZER_ERRORS(HTML_ERROR_NAME)
#undef HTML_ERROR_NAME
    };
    return kNames[static_cast<std::size_t>(code)];
}

} // namespace html
