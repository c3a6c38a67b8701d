#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace html {

// The tokenizer's parse errors under the code names the HTML standard gives them; one list
// feeds both the enum and the names so they cannot drift apart.
#define HTML_TOKENIZER_ERRORS(X)                                                                   \
    X(AbruptClosingOfEmptyComment, "abrupt-closing-of-empty-comment")                              \
    X(AbruptDoctypePublicIdentifier, "abrupt-doctype-public-identifier")                           \
    X(AbruptDoctypeSystemIdentifier, "abrupt-doctype-system-identifier")                           \
    X(AbsenceOfDigitsInNumericCharacterReference,                                                  \
      "absence-of-digits-in-numeric-character-reference")                                          \
    X(CdataInHtmlContent, "cdata-in-html-content")                                                 \
    X(CharacterReferenceOutsideUnicodeRange, "character-reference-outside-unicode-range")          \
    X(ControlCharacterInInputStream, "control-character-in-input-stream")                          \
    X(ControlCharacterReference, "control-character-reference")                                    \
    X(DuplicateAttribute, "duplicate-attribute")                                                   \
    X(EndTagWithAttributes, "end-tag-with-attributes")                                             \
    X(EndTagWithTrailingSolidus, "end-tag-with-trailing-solidus")                                  \
    X(EofBeforeTagName, "eof-before-tag-name")                                                     \
    X(EofInCdata, "eof-in-cdata")                                                                  \
    X(EofInComment, "eof-in-comment")                                                              \
    X(EofInDoctype, "eof-in-doctype")                                                              \
    X(EofInScriptHtmlCommentLikeText, "eof-in-script-html-comment-like-text")                      \
    X(EofInTag, "eof-in-tag")                                                                      \
    X(IncorrectlyClosedComment, "incorrectly-closed-comment")                                      \
    X(IncorrectlyOpenedComment, "incorrectly-opened-comment")                                      \
    X(InvalidCharacterSequenceAfterDoctypeName, "invalid-character-sequence-after-doctype-name")   \
    X(InvalidFirstCharacterOfTagName, "invalid-first-character-of-tag-name")                       \
    X(MissingAttributeValue, "missing-attribute-value")                                            \
    X(MissingDoctypeName, "missing-doctype-name")                                                  \
    X(MissingDoctypePublicIdentifier, "missing-doctype-public-identifier")                         \
    X(MissingDoctypeSystemIdentifier, "missing-doctype-system-identifier")                         \
    X(MissingEndTagName, "missing-end-tag-name")                                                   \
    X(MissingQuoteBeforeDoctypePublicIdentifier, "missing-quote-before-doctype-public-identifier") \
    X(MissingQuoteBeforeDoctypeSystemIdentifier, "missing-quote-before-doctype-system-identifier") \
    X(MissingSemicolonAfterCharacterReference, "missing-semicolon-after-character-reference")      \
    X(MissingWhitespaceAfterDoctypePublicKeyword,                                                  \
      "missing-whitespace-after-doctype-public-keyword")                                           \
    X(MissingWhitespaceAfterDoctypeSystemKeyword,                                                  \
      "missing-whitespace-after-doctype-system-keyword")                                           \
    X(MissingWhitespaceBeforeDoctypeName, "missing-whitespace-before-doctype-name")                \
    X(MissingWhitespaceBetweenAttributes, "missing-whitespace-between-attributes")                 \
    X(MissingWhitespaceBetweenDoctypePublicAndSystemIdentifiers,                                   \
      "missing-whitespace-between-doctype-public-and-system-identifiers")                          \
    X(NestedComment, "nested-comment")                                                             \
    X(NoncharacterCharacterReference, "noncharacter-character-reference")                          \
    X(NoncharacterInInputStream, "noncharacter-in-input-stream")                                   \
    X(NullCharacterReference, "null-character-reference")                                          \
    X(SurrogateCharacterReference, "surrogate-character-reference")                                \
    X(SurrogateInInputStream, "surrogate-in-input-stream")                                         \
    X(UnexpectedCharacterAfterDoctypeSystemIdentifier,                                             \
      "unexpected-character-after-doctype-system-identifier")                                      \
    X(UnexpectedCharacterInAttributeName, "unexpected-character-in-attribute-name")                \
    X(UnexpectedCharacterInUnquotedAttributeValue,                                                 \
      "unexpected-character-in-unquoted-attribute-value")                                          \
    X(UnexpectedEqualsSignBeforeAttributeName, "unexpected-equals-sign-before-attribute-name")     \
    X(UnexpectedNullCharacter, "unexpected-null-character")                                        \
    X(UnexpectedQuestionMarkInsteadOfTagName, "unexpected-question-mark-instead-of-tag-name")      \
    X(UnexpectedSolidusInTag, "unexpected-solidus-in-tag")                                         \
    X(UnknownNamedCharacterReference, "unknown-named-character-reference")

enum class ParseErrorCode : std::uint8_t {
#define HTML_ERROR_ENUM(id, text) id,
    HTML_TOKENIZER_ERRORS(HTML_ERROR_ENUM)
#undef HTML_ERROR_ENUM
};

std::string_view ParseErrorName(ParseErrorCode code);

// offset counts characters of the preprocessed input (line ends already folded to LF);
// InputStream::LocationOf turns it into a line and column.
struct ParseError {
    ParseErrorCode code;
    std::size_t offset;
};

} // namespace html
