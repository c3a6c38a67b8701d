// Tag tokens after their name: attributes, their values, the self-closing flag, and the
// duplicate-attribute rule.
#include "intake/html/CharClass.h"
#include "intake/html/Tokenizer.h"

#include <algorithm>

namespace html {
namespace {

// Tags rarely have more; past this a hash index keeps a tag with 100k attributes linear.
constexpr std::size_t kLinearAttributeLimit = 8;

} // namespace

void Tokenizer::StartTag(TokenKind kind) {
    current_ = Token{};
    current_.kind = kind;
    attrOpen_ = false;
    attrDropped_ = false;
    if (!attrIndex_.empty()) attrIndex_ = {};
}

void Tokenizer::EmitTag() {
    CommitAttribute();
    if (current_.kind == TokenKind::StartTag) {
        lastStartTag_ = current_.name;
    } else {
        if (!current_.attributes.empty()) Error(ParseErrorCode::EndTagWithAttributes);
        if (current_.selfClosing) Error(ParseErrorCode::EndTagWithTrailingSolidus);
    }
    EmitCurrent();
}

void Tokenizer::TagEof() {
    Error(ParseErrorCode::EofInTag);
    EmitEof();
}

void Tokenizer::StartAttribute() {
    CommitAttribute();
    attrOpen_ = true;
}

// Runs on leaving the attribute name state: a repeated name is dropped with its value.
void Tokenizer::CheckDuplicateAttribute() {
    if (!HasAttribute(attr_.name)) return;
    Error(ParseErrorCode::DuplicateAttribute);
    attrDropped_ = true;
}

void Tokenizer::CommitAttribute() {
    if (attrOpen_ && !attrDropped_) {
        if (!attrIndex_.empty()) attrIndex_.insert(attr_.name);
        current_.attributes.push_back(std::move(attr_));
    }
    attr_ = Attribute{};
    attrOpen_ = false;
    attrDropped_ = false;
}

bool Tokenizer::HasAttribute(std::u32string_view name) {
    const auto& attributes = current_.attributes;
    if (attributes.size() < kLinearAttributeLimit) {
        return std::any_of(attributes.begin(), attributes.end(),
                           [name](const Attribute& a) { return a.name == name; });
    }
    if (attrIndex_.empty()) {
        for (const Attribute& a : attributes)
            attrIndex_.insert(a.name);
    }
    return attrIndex_.contains(std::u32string(name));
}

void Tokenizer::OnBeforeAttributeName(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '/' || c == '>' || c == kEof) {
        Reconsume(State::AfterAttributeName);
    } else if (c == '=') {
        Error(ParseErrorCode::UnexpectedEqualsSignBeforeAttributeName);
        StartAttribute();
        attr_.name.push_back(c);
        state_ = State::AttributeName;
    } else {
        StartAttribute();
        Reconsume(State::AttributeName);
    }
}

void Tokenizer::OnAttributeName(char32_t c) {
    if (IsTokenizerSpace(c) || c == '/' || c == '>' || c == kEof) {
        CheckDuplicateAttribute();
        Reconsume(State::AfterAttributeName);
    } else if (c == '=') {
        CheckDuplicateAttribute();
        state_ = State::BeforeAttributeValue;
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
        attr_.name.push_back(U'\uFFFD');
    } else {
        if (c == '"' || c == '\'' || c == '<')
            Error(ParseErrorCode::UnexpectedCharacterInAttributeName);
        attr_.name.push_back(ToAsciiLower(c));
    }
}

void Tokenizer::OnAfterAttributeName(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '/') {
        state_ = State::SelfClosingStartTag;
    } else if (c == '=') {
        state_ = State::BeforeAttributeValue;
    } else if (c == '>') {
        state_ = State::Data;
        EmitTag();
    } else if (c == kEof) {
        TagEof();
    } else {
        StartAttribute();
        Reconsume(State::AttributeName);
    }
}

void Tokenizer::OnBeforeAttributeValue(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '"') {
        state_ = State::AttributeValueDoubleQuoted;
    } else if (c == '\'') {
        state_ = State::AttributeValueSingleQuoted;
    } else if (c == '>') {
        Error(ParseErrorCode::MissingAttributeValue);
        state_ = State::Data;
        EmitTag();
    } else {
        Reconsume(State::AttributeValueUnquoted);
    }
}

void Tokenizer::AttributeValueQuoted(char32_t c, char32_t quote, State self) {
    if (c == quote) {
        state_ = State::AfterAttributeValueQuoted;
    } else if (c == '&') {
        returnState_ = self;
        state_ = State::CharacterReference;
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
        attr_.value.push_back(U'\uFFFD');
    } else if (c == kEof) {
        TagEof();
    } else {
        attr_.value.push_back(c);
    }
}

void Tokenizer::OnAttributeValueDoubleQuoted(char32_t c) {
    AttributeValueQuoted(c, '"', State::AttributeValueDoubleQuoted);
}

void Tokenizer::OnAttributeValueSingleQuoted(char32_t c) {
    AttributeValueQuoted(c, '\'', State::AttributeValueSingleQuoted);
}

void Tokenizer::OnAttributeValueUnquoted(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::BeforeAttributeName;
    } else if (c == '&') {
        returnState_ = State::AttributeValueUnquoted;
        state_ = State::CharacterReference;
    } else if (c == '>') {
        state_ = State::Data;
        EmitTag();
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
        attr_.value.push_back(U'\uFFFD');
    } else if (c == kEof) {
        TagEof();
    } else {
        if (c == '"' || c == '\'' || c == '<' || c == '=' || c == '`')
            Error(ParseErrorCode::UnexpectedCharacterInUnquotedAttributeValue);
        attr_.value.push_back(c);
    }
}

void Tokenizer::OnAfterAttributeValueQuoted(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::BeforeAttributeName;
    } else if (c == '/') {
        state_ = State::SelfClosingStartTag;
    } else if (c == '>') {
        state_ = State::Data;
        EmitTag();
    } else if (c == kEof) {
        TagEof();
    } else {
        Error(ParseErrorCode::MissingWhitespaceBetweenAttributes);
        Reconsume(State::BeforeAttributeName);
    }
}

void Tokenizer::OnSelfClosingStartTag(char32_t c) {
    if (c == '>') {
        current_.selfClosing = true;
        state_ = State::Data;
        EmitTag();
    } else if (c == kEof) {
        TagEof();
    } else {
        Error(ParseErrorCode::UnexpectedSolidusInTag);
        Reconsume(State::BeforeAttributeName);
    }
}

} // namespace html
