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

// Start tags that "in body", "after head" and "in template" all hand to the "in head" rules.
inline bool IsHeadContent(Tag tag) {
    switch (tag) {
    case Tag::Base:
    case Tag::Basefont:
    case Tag::Bgsound:
    case Tag::Link:
    case Tag::Meta:
    case Tag::Noframes:
    case Tag::Script:
    case Tag::Style:
    case Tag::Template:
    case Tag::Title:
        return true;
    default:
        return false;
    }
}

// The block elements that both close a paragraph when they start in body and end plainly
// (in scope, implied end tags, pop) when they end; each side adds a few of its own.
inline bool IsBodyBlock(Tag tag) {
    switch (tag) {
    case Tag::Address:
    case Tag::Article:
    case Tag::Aside:
    case Tag::Blockquote:
    case Tag::Center:
    case Tag::Details:
    case Tag::Dialog:
    case Tag::Dir:
    case Tag::Div:
    case Tag::Dl:
    case Tag::Fieldset:
    case Tag::Figcaption:
    case Tag::Figure:
    case Tag::Footer:
    case Tag::Header:
    case Tag::Hgroup:
    case Tag::Main:
    case Tag::Menu:
    case Tag::Nav:
    case Tag::Ol:
    case Tag::Search:
    case Tag::Section:
    case Tag::Summary:
    case Tag::Ul:
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
