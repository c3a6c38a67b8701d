#pragma once

#include <cstdint>

namespace html {

// The tokenizer's states as the HTML standard names them. The named character reference and
// numeric character reference end steps run inline, so they have no state of their own.
#define HTML_TOKENIZER_STATES(X)                                                                   \
    X(Data)                                                                                        \
    X(Rcdata)                                                                                      \
    X(Rawtext)                                                                                     \
    X(ScriptData)                                                                                  \
    X(Plaintext)                                                                                   \
    X(TagOpen)                                                                                     \
    X(EndTagOpen)                                                                                  \
    X(TagName)                                                                                     \
    X(RcdataLessThanSign)                                                                          \
    X(RcdataEndTagOpen)                                                                            \
    X(RcdataEndTagName)                                                                            \
    X(RawtextLessThanSign)                                                                         \
    X(RawtextEndTagOpen)                                                                           \
    X(RawtextEndTagName)                                                                           \
    X(ScriptDataLessThanSign)                                                                      \
    X(ScriptDataEndTagOpen)                                                                        \
    X(ScriptDataEndTagName)                                                                        \
    X(ScriptDataEscapeStart)                                                                       \
    X(ScriptDataEscapeStartDash)                                                                   \
    X(ScriptDataEscaped)                                                                           \
    X(ScriptDataEscapedDash)                                                                       \
    X(ScriptDataEscapedDashDash)                                                                   \
    X(ScriptDataEscapedLessThanSign)                                                               \
    X(ScriptDataEscapedEndTagOpen)                                                                 \
    X(ScriptDataEscapedEndTagName)                                                                 \
    X(ScriptDataDoubleEscapeStart)                                                                 \
    X(ScriptDataDoubleEscaped)                                                                     \
    X(ScriptDataDoubleEscapedDash)                                                                 \
    X(ScriptDataDoubleEscapedDashDash)                                                             \
    X(ScriptDataDoubleEscapedLessThanSign)                                                         \
    X(ScriptDataDoubleEscapeEnd)                                                                   \
    X(BeforeAttributeName)                                                                         \
    X(AttributeName)                                                                               \
    X(AfterAttributeName)                                                                          \
    X(BeforeAttributeValue)                                                                        \
    X(AttributeValueDoubleQuoted)                                                                  \
    X(AttributeValueSingleQuoted)                                                                  \
    X(AttributeValueUnquoted)                                                                      \
    X(AfterAttributeValueQuoted)                                                                   \
    X(SelfClosingStartTag)                                                                         \
    X(BogusComment)                                                                                \
    X(MarkupDeclarationOpen)                                                                       \
    X(CommentStart)                                                                                \
    X(CommentStartDash)                                                                            \
    X(Comment)                                                                                     \
    X(CommentLessThanSign)                                                                         \
    X(CommentLessThanSignBang)                                                                     \
    X(CommentLessThanSignBangDash)                                                                 \
    X(CommentLessThanSignBangDashDash)                                                             \
    X(CommentEndDash)                                                                              \
    X(CommentEnd)                                                                                  \
    X(CommentEndBang)                                                                              \
    X(Doctype)                                                                                     \
    X(BeforeDoctypeName)                                                                           \
    X(DoctypeName)                                                                                 \
    X(AfterDoctypeName)                                                                            \
    X(AfterDoctypePublicKeyword)                                                                   \
    X(BeforeDoctypePublicIdentifier)                                                               \
    X(DoctypePublicIdentifierDoubleQuoted)                                                         \
    X(DoctypePublicIdentifierSingleQuoted)                                                         \
    X(AfterDoctypePublicIdentifier)                                                                \
    X(BetweenDoctypePublicAndSystemIdentifiers)                                                    \
    X(AfterDoctypeSystemKeyword)                                                                   \
    X(BeforeDoctypeSystemIdentifier)                                                               \
    X(DoctypeSystemIdentifierDoubleQuoted)                                                         \
    X(DoctypeSystemIdentifierSingleQuoted)                                                         \
    X(AfterDoctypeSystemIdentifier)                                                                \
    X(BogusDoctype)                                                                                \
    X(CdataSection)                                                                                \
    X(CdataSectionBracket)                                                                         \
    X(CdataSectionEnd)                                                                             \
    X(CharacterReference)                                                                          \
    X(AmbiguousAmpersand)                                                                          \
    X(NumericCharacterReference)                                                                   \
    X(HexadecimalCharacterReferenceStart)                                                          \
    X(DecimalCharacterReferenceStart)                                                              \
    X(HexadecimalCharacterReference)                                                               \
    X(DecimalCharacterReference)

enum class State : std::uint8_t {
#define HTML_STATE_ENUM(id) id,
    HTML_TOKENIZER_STATES(HTML_STATE_ENUM)
#undef HTML_STATE_ENUM
};

} // namespace html
