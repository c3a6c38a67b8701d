// Script data and its escaped ("<!--") and double-escaped ("<!--<script>") forms.
#include "intake/html/CharClass.h"
#include "intake/html/Tokenizer.h"

namespace html {

void Tokenizer::OnScriptData(char32_t c) {
    if (c == '<')
        state_ = State::ScriptDataLessThanSign;
    else
        EmitText(c);
}

void Tokenizer::OnScriptDataLessThanSign(char32_t c) {
    if (c == '!') {
        state_ = State::ScriptDataEscapeStart;
        EmitChars(U"<!");
    } else {
        TextLessThanSign(c, State::ScriptData, State::ScriptDataEndTagOpen);
    }
}

void Tokenizer::OnScriptDataEndTagOpen(char32_t c) {
    TextEndTagOpen(c, State::ScriptData, State::ScriptDataEndTagName);
}
void Tokenizer::OnScriptDataEndTagName(char32_t c) {
    TextEndTagName(c, State::ScriptData);
}

void Tokenizer::OnScriptDataEscapeStart(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataEscapeStartDash;
        EmitChar('-');
    } else {
        Reconsume(State::ScriptData);
    }
}

void Tokenizer::OnScriptDataEscapeStartDash(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataEscapedDashDash;
        EmitChar('-');
    } else {
        Reconsume(State::ScriptData);
    }
}

void Tokenizer::OnScriptDataEscaped(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataEscapedDash;
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataEscapedLessThanSign;
    } else {
        if (c == kEof) Error(ParseErrorCode::EofInScriptHtmlCommentLikeText);
        EmitText(c);
    }
}

void Tokenizer::OnScriptDataEscapedDash(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataEscapedDashDash;
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataEscapedLessThanSign;
    } else {
        Reconsume(State::ScriptDataEscaped);
    }
}

void Tokenizer::OnScriptDataEscapedDashDash(char32_t c) {
    if (c == '-') {
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataEscapedLessThanSign;
    } else if (c == '>') {
        state_ = State::ScriptData;
        EmitChar('>');
    } else {
        Reconsume(State::ScriptDataEscaped);
    }
}

void Tokenizer::OnScriptDataEscapedLessThanSign(char32_t c) {
    if (c == '/') {
        temp_.clear();
        state_ = State::ScriptDataEscapedEndTagOpen;
    } else if (IsAsciiAlpha(c)) {
        temp_.clear();
        EmitChar('<');
        Reconsume(State::ScriptDataDoubleEscapeStart);
    } else {
        EmitChar('<');
        Reconsume(State::ScriptDataEscaped);
    }
}

void Tokenizer::OnScriptDataEscapedEndTagOpen(char32_t c) {
    TextEndTagOpen(c, State::ScriptDataEscaped, State::ScriptDataEscapedEndTagName);
}
void Tokenizer::OnScriptDataEscapedEndTagName(char32_t c) {
    TextEndTagName(c, State::ScriptDataEscaped);
}

// Entering and leaving double escaping both hinge on the word "script" ending at a boundary.
void Tokenizer::DoubleEscapeBoundary(char32_t c, State onScript, State otherwise) {
    if (IsTokenizerSpace(c) || c == '/' || c == '>') {
        state_ = temp_ == U"script" ? onScript : otherwise;
        EmitChar(c);
    } else if (IsAsciiAlpha(c)) {
        temp_.push_back(ToAsciiLower(c));
        EmitChar(c);
    } else {
        Reconsume(otherwise);
    }
}

void Tokenizer::OnScriptDataDoubleEscapeStart(char32_t c) {
    DoubleEscapeBoundary(c, State::ScriptDataDoubleEscaped, State::ScriptDataEscaped);
}

void Tokenizer::OnScriptDataDoubleEscapeEnd(char32_t c) {
    DoubleEscapeBoundary(c, State::ScriptDataEscaped, State::ScriptDataDoubleEscaped);
}

void Tokenizer::OnScriptDataDoubleEscaped(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataDoubleEscapedDash;
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataDoubleEscapedLessThanSign;
        EmitChar('<');
    } else {
        if (c == kEof) Error(ParseErrorCode::EofInScriptHtmlCommentLikeText);
        EmitText(c);
    }
}

void Tokenizer::OnScriptDataDoubleEscapedDash(char32_t c) {
    if (c == '-') {
        state_ = State::ScriptDataDoubleEscapedDashDash;
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataDoubleEscapedLessThanSign;
        EmitChar('<');
    } else {
        Reconsume(State::ScriptDataDoubleEscaped);
    }
}

void Tokenizer::OnScriptDataDoubleEscapedDashDash(char32_t c) {
    if (c == '-') {
        EmitChar('-');
    } else if (c == '<') {
        state_ = State::ScriptDataDoubleEscapedLessThanSign;
        EmitChar('<');
    } else if (c == '>') {
        state_ = State::ScriptData;
        EmitChar('>');
    } else {
        Reconsume(State::ScriptDataDoubleEscaped);
    }
}

void Tokenizer::OnScriptDataDoubleEscapedLessThanSign(char32_t c) {
    if (c == '/') {
        temp_.clear();
        state_ = State::ScriptDataDoubleEscapeEnd;
        EmitChar('/');
    } else {
        Reconsume(State::ScriptDataDoubleEscaped);
    }
}

} // namespace html
