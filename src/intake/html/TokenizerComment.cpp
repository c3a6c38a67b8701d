// Markup declarations: comments, bogus comments and CDATA sections.
#include "intake/html/CharClass.h"
#include "intake/html/Tokenizer.h"

namespace html {

void Tokenizer::CommentEof() {
    Error(ParseErrorCode::EofInComment);
    EmitCurrent();
    EmitEof();
}

void Tokenizer::OnBogusComment(char32_t c) {
    switch (c) {
    case '>':
        state_ = State::Data;
        EmitCurrent();
        break;
    case kEof:
        EmitCurrent();
        EmitEof();
        break;
    case 0:
        Error(ParseErrorCode::UnexpectedNullCharacter);
        current_.data.push_back(U'\uFFFD');
        break;
    default:
        current_.data.push_back(c);
    }
}

void Tokenizer::OnMarkupDeclarationOpen(char32_t) {
    // The keywords are matched from the character just consumed.
    Reconsume(State::MarkupDeclarationOpen);
    if (LookAhead(U"--", false)) {
        pos_ += 2;
        StartComment(U"");
        state_ = State::CommentStart;
    } else if (LookAhead(U"doctype", true)) {
        pos_ += 7;
        state_ = State::Doctype;
    } else if (LookAhead(U"[CDATA[", false)) {
        pos_ += 7;
        if (cdataAllowed_) {
            state_ = State::CdataSection;
            return;
        }
        Error(ParseErrorCode::CdataInHtmlContent);
        StartComment(U"[CDATA[");
        state_ = State::BogusComment;
    } else {
        ErrorAt(ParseErrorCode::IncorrectlyOpenedComment, pos_);
        StartComment(U"");
        state_ = State::BogusComment;
    }
}

void Tokenizer::OnCommentStart(char32_t c) {
    if (c == '-') {
        state_ = State::CommentStartDash;
    } else if (c == '>') {
        Error(ParseErrorCode::AbruptClosingOfEmptyComment);
        state_ = State::Data;
        EmitCurrent();
    } else {
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnCommentStartDash(char32_t c) {
    if (c == '-') {
        state_ = State::CommentEnd;
    } else if (c == '>') {
        Error(ParseErrorCode::AbruptClosingOfEmptyComment);
        state_ = State::Data;
        EmitCurrent();
    } else if (c == kEof) {
        CommentEof();
    } else {
        current_.data.push_back('-');
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnComment(char32_t c) {
    switch (c) {
    case '<':
        current_.data.push_back(c);
        state_ = State::CommentLessThanSign;
        break;
    case '-':
        state_ = State::CommentEndDash;
        break;
    case 0:
        Error(ParseErrorCode::UnexpectedNullCharacter);
        current_.data.push_back(U'\uFFFD');
        break;
    case kEof:
        CommentEof();
        break;
    default:
        current_.data.push_back(c);
    }
}

void Tokenizer::OnCommentLessThanSign(char32_t c) {
    if (c == '!') {
        current_.data.push_back(c);
        state_ = State::CommentLessThanSignBang;
    } else if (c == '<') {
        current_.data.push_back(c);
    } else {
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnCommentLessThanSignBang(char32_t c) {
    if (c == '-')
        state_ = State::CommentLessThanSignBangDash;
    else
        Reconsume(State::Comment);
}

void Tokenizer::OnCommentLessThanSignBangDash(char32_t c) {
    if (c == '-')
        state_ = State::CommentLessThanSignBangDashDash;
    else
        Reconsume(State::CommentEndDash);
}

void Tokenizer::OnCommentLessThanSignBangDashDash(char32_t c) {
    if (c != '>' && c != kEof) Error(ParseErrorCode::NestedComment);
    Reconsume(State::CommentEnd);
}

void Tokenizer::OnCommentEndDash(char32_t c) {
    if (c == '-') {
        state_ = State::CommentEnd;
    } else if (c == kEof) {
        CommentEof();
    } else {
        current_.data.push_back('-');
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnCommentEnd(char32_t c) {
    switch (c) {
    case '>':
        state_ = State::Data;
        EmitCurrent();
        break;
    case '!':
        state_ = State::CommentEndBang;
        break;
    case '-':
        current_.data.push_back('-');
        break;
    case kEof:
        CommentEof();
        break;
    default:
        current_.data.append(U"--");
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnCommentEndBang(char32_t c) {
    if (c == '-') {
        current_.data.append(U"--!");
        state_ = State::CommentEndDash;
    } else if (c == '>') {
        Error(ParseErrorCode::IncorrectlyClosedComment);
        state_ = State::Data;
        EmitCurrent();
    } else if (c == kEof) {
        CommentEof();
    } else {
        current_.data.append(U"--!");
        Reconsume(State::Comment);
    }
}

void Tokenizer::OnCdataSection(char32_t c) {
    if (c == ']') {
        state_ = State::CdataSectionBracket;
    } else if (c == kEof) {
        Error(ParseErrorCode::EofInCdata);
        EmitEof();
    } else {
        EmitChar(c);
    }
}

void Tokenizer::OnCdataSectionBracket(char32_t c) {
    if (c == ']') {
        state_ = State::CdataSectionEnd;
    } else {
        EmitChar(']');
        Reconsume(State::CdataSection);
    }
}

void Tokenizer::OnCdataSectionEnd(char32_t c) {
    if (c == ']') {
        EmitChar(']');
    } else if (c == '>') {
        state_ = State::Data;
    } else {
        EmitChars(U"]]");
        Reconsume(State::CdataSection);
    }
}

} // namespace html
