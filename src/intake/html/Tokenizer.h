#pragma once

#include "intake/html/InputStream.h"
#include "intake/html/ParseError.h"
#include "intake/html/Token.h"
#include "intake/html/TokenizerState.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace html {

// The HTML tokenizer: characters in, tokens out, one token per Next(). Between two tokens the
// tree builder may switch the content state (RCDATA, RAWTEXT, script data, PLAINTEXT), set the
// last start tag, and say whether CDATA sections are allowed (foreign content). Adjacent
// characters come out as one Character token. Every state does bounded work per input
// character, so time and memory grow linearly with the input.
class Tokenizer {
  public:
    // UTF-8 or raw bytes: DecodeUtf8 or DecodeDocument first.
    explicit Tokenizer(std::u32string_view input);
    Tokenizer(const Tokenizer&) = delete; // text_ views input_'s own copy
    Tokenizer& operator=(const Tokenizer&) = delete;

    // Fills `token` and returns true, or returns false once the end-of-file token is out.
    bool Next(Token& token);

    void SetState(State state) { state_ = state; }
    void SetLastStartTag(std::u32string_view name) { lastStartTag_ = name; }
    void SetCdataAllowed(bool allowed) { cdataAllowed_ = allowed; }

    // Errors of the input stream and of tokenizing, in input order.
    std::vector<ParseError> Errors() const;
    const InputStream& Input() const { return input_; }

    // State machine steps so far: one per character consumed, reconsuming included. Stays
    // within a small multiple of the input length; tests hold it to that.
    std::size_t Steps() const { return steps_; }

  private:
    static constexpr char32_t kEof = 0xFFFFFFFF; // above any code point the input can hold

#define HTML_DECLARE_STATE_HANDLER(id) void On##id(char32_t c);
    HTML_TOKENIZER_STATES(HTML_DECLARE_STATE_HANDLER)
#undef HTML_DECLARE_STATE_HANDLER

    void Step();
    char32_t Consume();
    void Reconsume(State state);
    bool LookAhead(std::u32string_view word, bool ignoreCase) const;
    void Error(ParseErrorCode code);
    void ErrorAt(ParseErrorCode code, std::size_t offset);

    void EmitChar(char32_t c) {
        pending_.push_back(c);
    }
    void EmitChars(std::u32string_view chars) {
        pending_.append(chars);
    }
    // Every text state but data treats NULL, the end of input and other characters alike.
    void EmitText(char32_t c) {
        if (c == 0) {
            Error(ParseErrorCode::UnexpectedNullCharacter);
            EmitChar(U'\uFFFD');
        } else if (c == kEof) {
            EmitEof();
        } else {
            EmitChar(c);
        }
    }
    void EmitCurrent();
    void EmitEof();
    void FlushCharacters();

    void StartTag(TokenKind kind);
    void StartComment(std::u32string_view data);
    void StartDoctype();
    void EmitTag();
    void StartAttribute();
    void CheckDuplicateAttribute();
    void CommitAttribute();
    bool HasAttribute(std::u32string_view name);

    void TextLessThanSign(char32_t c, State text, State endTagOpen);
    void TextEndTagOpen(char32_t c, State text, State endTagName);
    void TextEndTagName(char32_t c, State text);
    bool IsAppropriateEndTag() const;
    void AttributeValueQuoted(char32_t c, char32_t quote, State self);
    void TagEof();
    void CommentEof();
    void DoctypeAfterKeyword(char32_t c, bool isPublic);
    void DoctypeBeforeIdentifier(char32_t c, bool isPublic);
    void DoctypeIdentifierQuoted(char32_t c, char32_t quote, bool isPublic);
    void DoctypeEof();
    void DoctypeBogus(ParseErrorCode code);
    void DoctypeMissingIdentifier(ParseErrorCode code);
    void BeginDoctypeIdentifier(bool isPublic, char32_t quote);
    void DoubleEscapeBoundary(char32_t c, State onScript, State otherwise);

    bool InAttribute() const;
    void FlushCharRef();
    void ConsumeNamedCharRef();
    void NumericCharRefStart(bool isDigit, State digits);
    void EndNumericCharRefDigits(char32_t c);
    void FinishNumericCharRef();

    InputStream input_;
    std::u32string_view text_;
    std::size_t pos_ = 0; // next character to consume; one past the current one
    State state_ = State::Data;
    State returnState_ = State::Data;
    bool cdataAllowed_ = false;
    bool eofEmitted_ = false;
    std::size_t steps_ = 0;

    Token current_; // the tag, comment or DOCTYPE being built
    Attribute attr_;
    bool attrOpen_ = false;
    bool attrDropped_ = false;
    std::unordered_set<std::u32string> attrIndex_; // only for tags with many attributes
    std::u32string lastStartTag_;
    std::u32string temp_; // the standard's temporary buffer
    std::uint32_t charRefCode_ = 0;

    std::u32string pending_; // characters not yet handed out
    std::deque<Token> ready_;
    std::vector<ParseError> errors_;
};

} // namespace html
