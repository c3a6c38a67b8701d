#pragma once

#include <cstddef>
#include <string_view>

namespace html {

enum class EncodingSource {
    ByteOrderMark, // UTF-8, UTF-16LE or UTF-16BE, with the mark to skip
    MetaPrescan,   // a <meta> in the page named it
    Utf8Content,   // nothing named it, but the bytes are UTF-8 beyond ASCII
    Default,       // nothing named it: Windows-1252
};

struct EncodingGuess {
    std::string_view encoding; // an Encoding Standard name, e.g. "windows-1252"
    EncodingSource source;
    std::size_t bomLength; // bytes to skip before decoding
};

// A local page's encoding: its byte order mark, else what the <meta> prescan finds, else
// UTF-8 if the bytes are valid UTF-8, else Windows-1252. Pure ASCII reports Windows-1252,
// the legacy default, which decodes it the same.
EncodingGuess SniffEncoding(std::string_view bytes);

} // namespace html
