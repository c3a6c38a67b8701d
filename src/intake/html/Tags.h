#pragma once

#include <cstdint>
#include <string_view>

namespace html {

// The tag names the tree builder and its readers act on, as one small integer each, so that the
// many "is it one of these" tests are switch statements rather than string compares. Names not
// in the list are Tag::Unknown and are told apart by their text.
#define HTML_KNOWN_TAGS(X)                                                                         \
    X(A, "a")                                                                                      \
    X(Address, "address")                                                                          \
    X(AnnotationXml, "annotation-xml")                                                             \
    X(Applet, "applet")                                                                            \
    X(Area, "area")                                                                                \
    X(Article, "article")                                                                          \
    X(Aside, "aside")                                                                              \
    X(B, "b")                                                                                      \
    X(Base, "base")                                                                                \
    X(Basefont, "basefont")                                                                        \
    X(Bgsound, "bgsound")                                                                          \
    X(Big, "big")                                                                                  \
    X(Blockquote, "blockquote")                                                                    \
    X(Body, "body")                                                                                \
    X(Br, "br")                                                                                    \
    X(Button, "button")                                                                            \
    X(Caption, "caption")                                                                          \
    X(Center, "center")                                                                            \
    X(Code, "code")                                                                                \
    X(Col, "col")                                                                                  \
    X(Colgroup, "colgroup")                                                                        \
    X(Dd, "dd")                                                                                    \
    X(Desc, "desc")                                                                                \
    X(Details, "details")                                                                          \
    X(Dialog, "dialog")                                                                            \
    X(Dir, "dir")                                                                                  \
    X(Div, "div")                                                                                  \
    X(Dl, "dl")                                                                                    \
    X(Dt, "dt")                                                                                    \
    X(Em, "em")                                                                                    \
    X(Embed, "embed")                                                                              \
    X(Fieldset, "fieldset")                                                                        \
    X(Figcaption, "figcaption")                                                                    \
    X(Figure, "figure")                                                                            \
    X(Font, "font")                                                                                \
    X(Footer, "footer")                                                                            \
    X(ForeignObject, "foreignObject")                                                              \
    X(Form, "form")                                                                                \
    X(Frame, "frame")                                                                              \
    X(Frameset, "frameset")                                                                        \
    X(H1, "h1")                                                                                    \
    X(H2, "h2")                                                                                    \
    X(H3, "h3")                                                                                    \
    X(H4, "h4")                                                                                    \
    X(H5, "h5")                                                                                    \
    X(H6, "h6")                                                                                    \
    X(Head, "head")                                                                                \
    X(Header, "header")                                                                            \
    X(Hgroup, "hgroup")                                                                            \
    X(Hr, "hr")                                                                                    \
    X(Html, "html")                                                                                \
    X(I, "i")                                                                                      \
    X(Iframe, "iframe")                                                                            \
    X(Image, "image")                                                                              \
    X(Img, "img")                                                                                  \
    X(Input, "input")                                                                              \
    X(Keygen, "keygen")                                                                            \
    X(Li, "li")                                                                                    \
    X(Link, "link")                                                                                \
    X(Listing, "listing")                                                                          \
    X(Main, "main")                                                                                \
    X(Malignmark, "malignmark")                                                                    \
    X(Marquee, "marquee")                                                                          \
    X(Math, "math")                                                                                \
    X(Menu, "menu")                                                                                \
    X(Meta, "meta")                                                                                \
    X(Mglyph, "mglyph")                                                                            \
    X(Mi, "mi")                                                                                    \
    X(Mn, "mn")                                                                                    \
    X(Mo, "mo")                                                                                    \
    X(Ms, "ms")                                                                                    \
    X(Mtext, "mtext")                                                                              \
    X(Nav, "nav")                                                                                  \
    X(Nobr, "nobr")                                                                                \
    X(Noembed, "noembed")                                                                          \
    X(Noframes, "noframes")                                                                        \
    X(Noscript, "noscript")                                                                        \
    X(Object, "object")                                                                            \
    X(Ol, "ol")                                                                                    \
    X(Optgroup, "optgroup")                                                                        \
    X(Option, "option")                                                                            \
    X(P, "p")                                                                                      \
    X(Param, "param")                                                                              \
    X(Plaintext, "plaintext")                                                                      \
    X(Pre, "pre")                                                                                  \
    X(Rb, "rb")                                                                                    \
    X(Rp, "rp")                                                                                    \
    X(Rt, "rt")                                                                                    \
    X(Rtc, "rtc")                                                                                  \
    X(Ruby, "ruby")                                                                                \
    X(S, "s")                                                                                      \
    X(Script, "script")                                                                            \
    X(Search, "search")                                                                            \
    X(Section, "section")                                                                          \
    X(Select, "select")                                                                            \
    X(Small, "small")                                                                              \
    X(Source, "source")                                                                            \
    X(Span, "span")                                                                                \
    X(Strike, "strike")                                                                            \
    X(Strong, "strong")                                                                            \
    X(Style, "style")                                                                              \
    X(Sub, "sub")                                                                                  \
    X(Summary, "summary")                                                                          \
    X(Sup, "sup")                                                                                  \
    X(Svg, "svg")                                                                                  \
    X(Table, "table")                                                                              \
    X(Tbody, "tbody")                                                                              \
    X(Td, "td")                                                                                    \
    X(Template, "template")                                                                        \
    X(Textarea, "textarea")                                                                        \
    X(Tfoot, "tfoot")                                                                              \
    X(Th, "th")                                                                                    \
    X(Thead, "thead")                                                                              \
    X(Title, "title")                                                                              \
    X(Tr, "tr")                                                                                    \
    X(Track, "track")                                                                              \
    X(Tt, "tt")                                                                                    \
    X(U, "u")                                                                                      \
    X(Ul, "ul")                                                                                    \
    X(Var, "var")                                                                                  \
    X(Wbr, "wbr")                                                                                  \
    X(Xmp, "xmp")

enum class Tag : std::uint8_t {
    Unknown,
#define HTML_TAG_ENUM(id, text) id,
    HTML_KNOWN_TAGS(HTML_TAG_ENUM)
#undef HTML_TAG_ENUM
};

// Exact, case-sensitive: the tokenizer has already lowered HTML tag names.
Tag LookupTag(std::u32string_view name);
std::string_view TagName(Tag tag);
std::u32string_view TagName32(Tag tag); // static storage

// The standard's "special" category of HTML elements (foreign ones are handled apart).
bool IsSpecialHtml(Tag tag);
bool IsFormatting(Tag tag);
bool IsHeading(Tag tag);

} // namespace html
