// Text content states (data, RCDATA, RAWTEXT, PLAINTEXT), tag opening, and the end tags that
// may close RCDATA and RAWTEXT.
#include "intake/html/CharClass.h"
#include "intake/html/Tokenizer.h"

namespace html {

void Tokenizer::OnData(char32_t c) {
    switch (c) {
    case '&':
        returnState_ = State::Data;
        state_ = State::CharacterReference;
        break;
    case '<':
        state_ = State::TagOpen;
        break;
    case 0:
        Error(ParseErrorCode::UnexpectedNullCharacter);
        EmitChar(c);
        break;
    case kEof:
        EmitEof();
        break;
    default:
        EmitChar(c);
    }
}

void Tokenizer::OnRcdata(char32_t c) {
    if (c == '&') {
        returnState_ = State::Rcdata;
        state_ = State::CharacterReference;
    } else if (c == '<') {
        state_ = State::RcdataLessThanSign;
    } else {
        EmitText(c);
    }
}

void Tokenizer::OnRawtext(char32_t c) {
    if (c == '<')
        state_ = State::RawtextLessThanSign;
    else
        EmitText(c);
}

void Tokenizer::OnPlaintext(char32_t c) {
    EmitText(c);
}

void Tokenizer::OnTagOpen(char32_t c) {
    if (IsAsciiAlpha(c)) {
        StartTag(TokenKind::StartTag);
        Reconsume(State::TagName);
    } else if (c == '!') {
        state_ = State::MarkupDeclarationOpen;
    } else if (c == '/') {
        state_ = State::EndTagOpen;
    } else if (c == '?') {
        Error(ParseErrorCode::UnexpectedQuestionMarkInsteadOfTagName);
        StartComment(U"");
        Reconsume(State::BogusComment);
    } else if (c == kEof) {
        Error(ParseErrorCode::EofBeforeTagName);
        EmitChar('<');
        EmitEof();
    } else {
        Error(ParseErrorCode::InvalidFirstCharacterOfTagName);
        EmitChar('<');
        Reconsume(State::Data);
    }
}

void Tokenizer::OnEndTagOpen(char32_t c) {
    if (IsAsciiAlpha(c)) {
        StartTag(TokenKind::EndTag);
        Reconsume(State::TagName);
    } else if (c == '>') {
        Error(ParseErrorCode::MissingEndTagName);
        state_ = State::Data;
    } else if (c == kEof) {
        Error(ParseErrorCode::EofBeforeTagName);
        EmitChars(U"</");
        EmitEof();
    } else {
        Error(ParseErrorCode::InvalidFirstCharacterOfTagName);
        StartComment(U"");
        Reconsume(State::BogusComment);
    }
}

void Tokenizer::OnTagName(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::BeforeAttributeName;
    } else if (c == '/') {
        state_ = State::SelfClosingStartTag;
    } else if (c == '>') {
        state_ = State::Data;
        EmitTag();
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
        current_.name.push_back(U'\uFFFD');
    } else if (c == kEof) {
        TagEof();
    } else {
        current_.name.push_back(ToAsciiLower(c));
    }
}

// The less-than sign, end tag open and end tag name states of RCDATA, RAWTEXT and script data
// differ only in the text state they fall back to.
void Tokenizer::TextLessThanSign(char32_t c, State text, State endTagOpen) {
    if (c == '/') {
        temp_.clear();
        state_ = endTagOpen;
    } else {
        EmitChar('<');
        Reconsume(text);
    }
}

void Tokenizer::TextEndTagOpen(char32_t c, State text, State endTagName) {
    if (IsAsciiAlpha(c)) {
        StartTag(TokenKind::EndTag);
        Reconsume(endTagName);
    } else {
        EmitChars(U"</");
        Reconsume(text);
    }
}

void Tokenizer::TextEndTagName(char32_t c, State text) {
    const bool closes = IsAppropriateEndTag();
    if (IsTokenizerSpace(c) && closes) {
        state_ = State::BeforeAttributeName;
    } else if (c == '/' && closes) {
        state_ = State::SelfClosingStartTag;
    } else if (c == '>' && closes) {
        state_ = State::Data;
        EmitTag();
    } else if (IsAsciiAlpha(c)) {
        current_.name.push_back(ToAsciiLower(c));
        temp_.push_back(c);
    } else {
        EmitChars(U"</");
        EmitChars(temp_);
        Reconsume(text);
    }
}

bool Tokenizer::IsAppropriateEndTag() const {
    return current_.kind == TokenKind::EndTag && !lastStartTag_.empty() &&
           current_.name == lastStartTag_;
}

void Tokenizer::OnRcdataLessThanSign(char32_t c) {
    TextLessThanSign(c, State::Rcdata, State::RcdataEndTagOpen);
}
void Tokenizer::OnRcdataEndTagOpen(char32_t c) {
    TextEndTagOpen(c, State::Rcdata, State::RcdataEndTagName);
}
void Tokenizer::OnRcdataEndTagName(char32_t c) {
    TextEndTagName(c, State::Rcdata);
}

void Tokenizer::OnRawtextLessThanSign(char32_t c) {
    TextLessThanSign(c, State::Rawtext, State::RawtextEndTagOpen);
}
void Tokenizer::OnRawtextEndTagOpen(char32_t c) {
    TextEndTagOpen(c, State::Rawtext, State::RawtextEndTagName);
}
void Tokenizer::OnRawtextEndTagName(char32_t c) {
    TextEndTagName(c, State::Rawtext);
}

} // namespace html
