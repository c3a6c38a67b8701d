#pragma once
// Small predicates the tree construction stages share. Internal to the parser.
#include "intake/html/Dom.h"
#include "intake/html/Token.h"

#include <string>
#include <string_view>

namespace html {

inline bool IsHtmlSpace(char32_t c) {
    return c == '\t' || c == '\n' || c == '\f' || c == '\r' || c == ' ';
}

inline bool IsAllSpace(std::u32string_view s) {
    for (char32_t c : s)
        if (!IsHtmlSpace(c)) return false;
    return true;
}

// The stages ask for a token's Tag many times over; remembering the last name answers most.
inline Tag TagOf(const Token& t) {
    thread_local std::u32string name;
    thread_local Tag tag = Tag::Unknown;
    if (t.name != name) {
        name = t.name;
        tag = LookupTag(name);
    }
    return tag;
}

inline bool IsStart(const Token& t) {
    return t.kind == TokenKind::StartTag;
}
inline bool IsEnd(const Token& t) {
    return t.kind == TokenKind::EndTag;
}
inline bool IsSpaceRun(const Token& t) {
    return t.kind == TokenKind::Character && IsAllSpace(t.data);
}

inline bool IsMathMlTextIntegrationPoint(const Node* n) {
    if (n->kind != NodeKind::Element || n->ns != Namespace::MathMl) return false;
    switch (n->tag) {
    case Tag::Mi:
    case Tag::Mo:
    case Tag::Mn:
    case Tag::Ms:
    case Tag::Mtext:
        return true;
    default:
        return false;
    }
}

bool IsHtmlIntegrationPoint(const Node* n);

// Attribute value of a token, or null.
const std::u32string* TokenAttribute(const Token& t, std::u32string_view name);
bool EqualsIgnoringAsciiCase(std::u32string_view a, std::u32string_view b);

} // namespace html
