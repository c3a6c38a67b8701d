#pragma once

#include <optional>
#include <string>
#include <vector>

namespace html {

enum class TokenKind { Doctype, StartTag, EndTag, Comment, Character, EndOfFile };

struct Attribute {
    std::u32string name;
    std::u32string value;

    bool operator==(const Attribute&) const = default;
};

// One record for every kind keeps the tokenizer free of variant juggling; only the fields of
// the token's kind carry meaning.
struct Token {
    TokenKind kind = TokenKind::EndOfFile;
    std::u32string name;                    // tag name or DOCTYPE name
    std::u32string data;                    // comment text or a run of characters
    std::vector<Attribute> attributes;      // start and end tags, duplicates already dropped
    bool selfClosing = false;               // tags
    bool nameMissing = false;               // DOCTYPE: no name at all, as opposed to an empty one
    std::optional<std::u32string> publicId; // DOCTYPE
    std::optional<std::u32string> systemId; // DOCTYPE
    bool forceQuirks = false;               // DOCTYPE
};

} // namespace html
