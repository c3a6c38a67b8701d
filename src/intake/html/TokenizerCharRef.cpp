// Character references: named (longest match in the table), decimal and hexadecimal.
#include "intake/html/CharClass.h"
#include "intake/html/NamedCharRefs.h"
#include "intake/html/Tokenizer.h"
#include "text/Utf8.h"

#include <algorithm>

namespace html {
namespace {

// Anything past the last code point is out of range alike; stopping here avoids overflow.
constexpr std::uint32_t kCodeCap = 0x110000;

bool IsNoncharacter(std::uint32_t c) {
    return (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE;
}

bool IsControlReference(std::uint32_t c) {
    const bool control = c <= 0x1F || (c >= 0x7F && c <= 0x9F);
    const bool whitespace = c == '\t' || c == '\n' || c == '\f' || c == ' ';
    return c == '\r' || (control && !whitespace);
}

std::uint32_t HexValue(char32_t c) {
    if (IsAsciiDigit(c)) return c - '0';
    return ToAsciiLower(c) - 'a' + 10;
}

} // namespace

bool Tokenizer::InAttribute() const {
    return returnState_ == State::AttributeValueDoubleQuoted ||
           returnState_ == State::AttributeValueSingleQuoted ||
           returnState_ == State::AttributeValueUnquoted;
}

void Tokenizer::FlushCharRef() {
    if (InAttribute())
        attr_.value.append(temp_);
    else
        EmitChars(temp_);
}

void Tokenizer::OnCharacterReference(char32_t c) {
    temp_ = U"&";
    if (IsAsciiAlnum(c)) {
        --pos_;
        ConsumeNamedCharRef();
    } else if (c == '#') {
        temp_.push_back(c);
        state_ = State::NumericCharacterReference;
    } else {
        FlushCharRef();
        Reconsume(returnState_);
    }
}

void Tokenizer::ConsumeNamedCharRef() {
    const NamedCharRef* ref = MatchNamedCharRef(text_.substr(pos_));
    if (ref == nullptr) {
        FlushCharRef();
        state_ = State::AmbiguousAmpersand;
        return;
    }
    pos_ += ref->name.size();
    temp_.append(ref->name.begin(), ref->name.end());
    state_ = returnState_;
    const bool semicolon = ref->name.back() == ';';
    const char32_t next = pos_ < text_.size() ? text_[pos_] : kEof;
    if (!semicolon && InAttribute() && (next == '=' || IsAsciiAlnum(next))) {
        FlushCharRef(); // historical: "&copy=" in a URL stays as written
        return;
    }
    if (!semicolon) ErrorAt(ParseErrorCode::MissingSemicolonAfterCharacterReference, pos_);
    temp_.assign(1, ref->first);
    if (ref->second != 0) temp_.push_back(ref->second);
    FlushCharRef();
}

void Tokenizer::OnAmbiguousAmpersand(char32_t c) {
    if (IsAsciiAlnum(c)) {
        if (InAttribute())
            attr_.value.push_back(c);
        else
            EmitChar(c);
        return;
    }
    if (c == ';') Error(ParseErrorCode::UnknownNamedCharacterReference);
    Reconsume(returnState_);
}

void Tokenizer::OnNumericCharacterReference(char32_t c) {
    charRefCode_ = 0;
    if (c == 'x' || c == 'X') {
        temp_.push_back(c);
        state_ = State::HexadecimalCharacterReferenceStart;
    } else {
        Reconsume(State::DecimalCharacterReferenceStart);
    }
}

// Hexadecimal and decimal references fail alike when no digit follows.
void Tokenizer::NumericCharRefStart(bool isDigit, State digits) {
    if (isDigit) return Reconsume(digits);
    Error(ParseErrorCode::AbsenceOfDigitsInNumericCharacterReference);
    FlushCharRef();
    Reconsume(returnState_);
}

void Tokenizer::OnHexadecimalCharacterReferenceStart(char32_t c) {
    NumericCharRefStart(IsAsciiHexDigit(c), State::HexadecimalCharacterReference);
}
void Tokenizer::OnDecimalCharacterReferenceStart(char32_t c) {
    NumericCharRefStart(IsAsciiDigit(c), State::DecimalCharacterReference);
}

void Tokenizer::OnHexadecimalCharacterReference(char32_t c) {
    if (IsAsciiHexDigit(c)) {
        charRefCode_ = std::min(charRefCode_ * 16 + HexValue(c), kCodeCap);
    } else {
        EndNumericCharRefDigits(c);
    }
}

void Tokenizer::OnDecimalCharacterReference(char32_t c) {
    if (IsAsciiDigit(c)) {
        charRefCode_ = std::min(charRefCode_ * 10 + (c - '0'), kCodeCap);
    } else {
        EndNumericCharRefDigits(c);
    }
}

// The first non-digit ends the number; only a semicolon belongs to the reference.
void Tokenizer::EndNumericCharRefDigits(char32_t c) {
    if (c != ';') {
        Error(ParseErrorCode::MissingSemicolonAfterCharacterReference);
        --pos_;
    }
    FinishNumericCharRef();
}

// The standard's numeric character reference end state. It consumes nothing, so its errors
// point at the character after the reference.
void Tokenizer::FinishNumericCharRef() {
    std::uint32_t code = charRefCode_;
    const auto error = [this](ParseErrorCode e) { ErrorAt(e, pos_); };
    if (code == 0) {
        error(ParseErrorCode::NullCharacterReference);
        code = 0xFFFD;
    } else if (code > 0x10FFFF) {
        error(ParseErrorCode::CharacterReferenceOutsideUnicodeRange);
        code = 0xFFFD;
    } else if (code >= 0xD800 && code <= 0xDFFF) {
        error(ParseErrorCode::SurrogateCharacterReference);
        code = 0xFFFD;
    } else if (IsNoncharacter(code)) {
        error(ParseErrorCode::NoncharacterCharacterReference);
    } else if (IsControlReference(code)) {
        error(ParseErrorCode::ControlCharacterReference);
        // Numeric references to C1 controls mean what Windows-1252 puts at those bytes.
        if (code >= 0x80 && code <= 0x9F)
            code = orvane::text::FromWindows1252(static_cast<unsigned char>(code));
    }
    temp_.assign(1, static_cast<char32_t>(code));
    FlushCharRef();
    state_ = returnState_;
}

} // namespace html
