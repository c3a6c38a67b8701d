// DOCTYPE tokens: the name, the PUBLIC and SYSTEM keywords and identifiers, and bogus rests.
#include "intake/html/CharClass.h"
#include "intake/html/Tokenizer.h"

namespace html {
namespace {

// What sets the PUBLIC half of a DOCTYPE apart from the SYSTEM half.
struct DoctypeIdentifierKind {
    State beforeIdentifier;
    ParseErrorCode missingWhitespaceAfterKeyword;
    ParseErrorCode missingIdentifier;
    ParseErrorCode missingQuote;
};

constexpr DoctypeIdentifierKind kPublicId{
    State::BeforeDoctypePublicIdentifier,
    ParseErrorCode::MissingWhitespaceAfterDoctypePublicKeyword,
    ParseErrorCode::MissingDoctypePublicIdentifier,
    ParseErrorCode::MissingQuoteBeforeDoctypePublicIdentifier};

constexpr DoctypeIdentifierKind kSystemId{
    State::BeforeDoctypeSystemIdentifier,
    ParseErrorCode::MissingWhitespaceAfterDoctypeSystemKeyword,
    ParseErrorCode::MissingDoctypeSystemIdentifier,
    ParseErrorCode::MissingQuoteBeforeDoctypeSystemIdentifier};

} // namespace

// End of input anywhere inside a DOCTYPE gives the same ending.
void Tokenizer::DoctypeEof() {
    Error(ParseErrorCode::EofInDoctype);
    current_.forceQuirks = true;
    EmitCurrent();
    EmitEof();
}

void Tokenizer::DoctypeBogus(ParseErrorCode code) {
    Error(code);
    current_.forceQuirks = true;
    Reconsume(State::BogusDoctype);
}

void Tokenizer::DoctypeMissingIdentifier(ParseErrorCode code) {
    Error(code);
    current_.forceQuirks = true;
    state_ = State::Data;
    EmitCurrent();
}

void Tokenizer::OnDoctype(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::BeforeDoctypeName;
    } else if (c == '>') {
        Reconsume(State::BeforeDoctypeName);
    } else if (c == kEof) {
        StartDoctype();
        current_.nameMissing = true;
        DoctypeEof();
    } else {
        Error(ParseErrorCode::MissingWhitespaceBeforeDoctypeName);
        Reconsume(State::BeforeDoctypeName);
    }
}

void Tokenizer::OnBeforeDoctypeName(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    StartDoctype();
    if (c == '>') {
        current_.nameMissing = true;
        DoctypeMissingIdentifier(ParseErrorCode::MissingDoctypeName);
    } else if (c == kEof) {
        current_.nameMissing = true;
        DoctypeEof();
    } else {
        if (c == 0) Error(ParseErrorCode::UnexpectedNullCharacter);
        current_.name.push_back(c == 0 ? U'\uFFFD' : ToAsciiLower(c));
        state_ = State::DoctypeName;
    }
}

void Tokenizer::OnDoctypeName(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::AfterDoctypeName;
    } else if (c == '>') {
        state_ = State::Data;
        EmitCurrent();
    } else if (c == kEof) {
        DoctypeEof();
    } else {
        if (c == 0) Error(ParseErrorCode::UnexpectedNullCharacter);
        current_.name.push_back(c == 0 ? U'\uFFFD' : ToAsciiLower(c));
    }
}

void Tokenizer::OnAfterDoctypeName(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '>') {
        state_ = State::Data;
        EmitCurrent();
        return;
    }
    if (c == kEof) return DoctypeEof();
    --pos_; // the keywords are matched from this character on
    if (LookAhead(U"public", true)) {
        pos_ += 6;
        state_ = State::AfterDoctypePublicKeyword;
    } else if (LookAhead(U"system", true)) {
        pos_ += 6;
        state_ = State::AfterDoctypeSystemKeyword;
    } else {
        ++pos_;
        DoctypeBogus(ParseErrorCode::InvalidCharacterSequenceAfterDoctypeName);
    }
}

void Tokenizer::BeginDoctypeIdentifier(bool isPublic, char32_t quote) {
    (isPublic ? current_.publicId : current_.systemId).emplace();
    if (isPublic) {
        state_ = quote == '"' ? State::DoctypePublicIdentifierDoubleQuoted
                              : State::DoctypePublicIdentifierSingleQuoted;
    } else {
        state_ = quote == '"' ? State::DoctypeSystemIdentifierDoubleQuoted
                              : State::DoctypeSystemIdentifierSingleQuoted;
    }
}

// Right after a keyword a quote may come without the space, at the cost of a parse error;
// otherwise the keyword's state is the state before its identifier.
void Tokenizer::DoctypeAfterKeyword(char32_t c, bool isPublic) {
    const DoctypeIdentifierKind& kind = isPublic ? kPublicId : kSystemId;
    if (IsTokenizerSpace(c)) {
        state_ = kind.beforeIdentifier;
        return;
    }
    if (c == '"' || c == '\'') Error(kind.missingWhitespaceAfterKeyword);
    DoctypeBeforeIdentifier(c, isPublic);
}

void Tokenizer::DoctypeBeforeIdentifier(char32_t c, bool isPublic) {
    const DoctypeIdentifierKind& kind = isPublic ? kPublicId : kSystemId;
    if (IsTokenizerSpace(c)) return;
    if (c == '"' || c == '\'') {
        BeginDoctypeIdentifier(isPublic, c);
    } else if (c == '>') {
        DoctypeMissingIdentifier(kind.missingIdentifier);
    } else if (c == kEof) {
        DoctypeEof();
    } else {
        DoctypeBogus(kind.missingQuote);
    }
}

void Tokenizer::OnAfterDoctypePublicKeyword(char32_t c) {
    DoctypeAfterKeyword(c, true);
}
void Tokenizer::OnBeforeDoctypePublicIdentifier(char32_t c) {
    DoctypeBeforeIdentifier(c, true);
}
void Tokenizer::OnAfterDoctypeSystemKeyword(char32_t c) {
    DoctypeAfterKeyword(c, false);
}
void Tokenizer::OnBeforeDoctypeSystemIdentifier(char32_t c) {
    DoctypeBeforeIdentifier(c, false);
}

void Tokenizer::DoctypeIdentifierQuoted(char32_t c, char32_t quote, bool isPublic) {
    std::u32string& id = isPublic ? *current_.publicId : *current_.systemId;
    if (c == quote) {
        state_ =
            isPublic ? State::AfterDoctypePublicIdentifier : State::AfterDoctypeSystemIdentifier;
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
        id.push_back(U'\uFFFD');
    } else if (c == '>') {
        DoctypeMissingIdentifier(isPublic ? ParseErrorCode::AbruptDoctypePublicIdentifier
                                          : ParseErrorCode::AbruptDoctypeSystemIdentifier);
    } else if (c == kEof) {
        DoctypeEof();
    } else {
        id.push_back(c);
    }
}

void Tokenizer::OnDoctypePublicIdentifierDoubleQuoted(char32_t c) {
    DoctypeIdentifierQuoted(c, '"', true);
}
void Tokenizer::OnDoctypePublicIdentifierSingleQuoted(char32_t c) {
    DoctypeIdentifierQuoted(c, '\'', true);
}
void Tokenizer::OnDoctypeSystemIdentifierDoubleQuoted(char32_t c) {
    DoctypeIdentifierQuoted(c, '"', false);
}
void Tokenizer::OnDoctypeSystemIdentifierSingleQuoted(char32_t c) {
    DoctypeIdentifierQuoted(c, '\'', false);
}

// As between the identifiers, but a quote without the space in front is a parse error.
void Tokenizer::OnAfterDoctypePublicIdentifier(char32_t c) {
    if (IsTokenizerSpace(c)) {
        state_ = State::BetweenDoctypePublicAndSystemIdentifiers;
        return;
    }
    if (c == '"' || c == '\'')
        Error(ParseErrorCode::MissingWhitespaceBetweenDoctypePublicAndSystemIdentifiers);
    OnBetweenDoctypePublicAndSystemIdentifiers(c);
}

void Tokenizer::OnBetweenDoctypePublicAndSystemIdentifiers(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '>') {
        state_ = State::Data;
        EmitCurrent();
    } else if (c == '"' || c == '\'') {
        BeginDoctypeIdentifier(false, c);
    } else if (c == kEof) {
        DoctypeEof();
    } else {
        DoctypeBogus(ParseErrorCode::MissingQuoteBeforeDoctypeSystemIdentifier);
    }
}

void Tokenizer::OnAfterDoctypeSystemIdentifier(char32_t c) {
    if (IsTokenizerSpace(c)) return;
    if (c == '>') {
        state_ = State::Data;
        EmitCurrent();
    } else if (c == kEof) {
        DoctypeEof();
    } else {
        // The only bogus rest that leaves quirks mode alone.
        Error(ParseErrorCode::UnexpectedCharacterAfterDoctypeSystemIdentifier);
        Reconsume(State::BogusDoctype);
    }
}

void Tokenizer::OnBogusDoctype(char32_t c) {
    if (c == '>') {
        state_ = State::Data;
        EmitCurrent();
    } else if (c == 0) {
        Error(ParseErrorCode::UnexpectedNullCharacter);
    } else if (c == kEof) {
        EmitCurrent();
        EmitEof();
    }
}

} // namespace html
