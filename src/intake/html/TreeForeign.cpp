// Rules for content in SVG and MathML, and the name fix-ups that case-insensitive HTML tag
// names need to become the mixed-case names those vocabularies use.
#include "intake/html/TreeBuilder.h"
#include "intake/html/TreeRules.h"

#include "intake/html/CharClass.h"

#include <algorithm>
#include <array>
#include <utility>

namespace html {
namespace {

using Rename = std::pair<std::u32string_view, std::u32string_view>;

constexpr std::array<Rename, 37> kSvgTagNames = {{
    {U"altglyph", U"altGlyph"},
    {U"altglyphdef", U"altGlyphDef"},
    {U"altglyphitem", U"altGlyphItem"},
    {U"animatecolor", U"animateColor"},
    {U"animatemotion", U"animateMotion"},
    {U"animatetransform", U"animateTransform"},
    {U"clippath", U"clipPath"},
    {U"feblend", U"feBlend"},
    {U"fecolormatrix", U"feColorMatrix"},
    {U"fecomponenttransfer", U"feComponentTransfer"},
    {U"fecomposite", U"feComposite"},
    {U"feconvolvematrix", U"feConvolveMatrix"},
    {U"fediffuselighting", U"feDiffuseLighting"},
    {U"fedisplacementmap", U"feDisplacementMap"},
    {U"fedistantlight", U"feDistantLight"},
    {U"fedropshadow", U"feDropShadow"},
    {U"feflood", U"feFlood"},
    {U"fefunca", U"feFuncA"},
    {U"fefuncb", U"feFuncB"},
    {U"fefuncg", U"feFuncG"},
    {U"fefuncr", U"feFuncR"},
    {U"fegaussianblur", U"feGaussianBlur"},
    {U"feimage", U"feImage"},
    {U"femerge", U"feMerge"},
    {U"femergenode", U"feMergeNode"},
    {U"femorphology", U"feMorphology"},
    {U"feoffset", U"feOffset"},
    {U"fepointlight", U"fePointLight"},
    {U"fespecularlighting", U"feSpecularLighting"},
    {U"fespotlight", U"feSpotLight"},
    {U"fetile", U"feTile"},
    {U"feturbulence", U"feTurbulence"},
    {U"foreignobject", U"foreignObject"},
    {U"glyphref", U"glyphRef"},
    {U"lineargradient", U"linearGradient"},
    {U"radialgradient", U"radialGradient"},
    {U"textpath", U"textPath"},
}};

constexpr std::array<Rename, 58> kSvgAttributeNames = {{
    {U"attributename", U"attributeName"},
    {U"attributetype", U"attributeType"},
    {U"basefrequency", U"baseFrequency"},
    {U"baseprofile", U"baseProfile"},
    {U"calcmode", U"calcMode"},
    {U"clippathunits", U"clipPathUnits"},
    {U"diffuseconstant", U"diffuseConstant"},
    {U"edgemode", U"edgeMode"},
    {U"filterunits", U"filterUnits"},
    {U"glyphref", U"glyphRef"},
    {U"gradienttransform", U"gradientTransform"},
    {U"gradientunits", U"gradientUnits"},
    {U"kernelmatrix", U"kernelMatrix"},
    {U"kernelunitlength", U"kernelUnitLength"},
    {U"keypoints", U"keyPoints"},
    {U"keysplines", U"keySplines"},
    {U"keytimes", U"keyTimes"},
    {U"lengthadjust", U"lengthAdjust"},
    {U"limitingconeangle", U"limitingConeAngle"},
    {U"markerheight", U"markerHeight"},
    {U"markerunits", U"markerUnits"},
    {U"markerwidth", U"markerWidth"},
    {U"maskcontentunits", U"maskContentUnits"},
    {U"maskunits", U"maskUnits"},
    {U"numoctaves", U"numOctaves"},
    {U"pathlength", U"pathLength"},
    {U"patterncontentunits", U"patternContentUnits"},
    {U"patterntransform", U"patternTransform"},
    {U"patternunits", U"patternUnits"},
    {U"pointsatx", U"pointsAtX"},
    {U"pointsaty", U"pointsAtY"},
    {U"pointsatz", U"pointsAtZ"},
    {U"preservealpha", U"preserveAlpha"},
    {U"preserveaspectratio", U"preserveAspectRatio"},
    {U"primitiveunits", U"primitiveUnits"},
    {U"refx", U"refX"},
    {U"refy", U"refY"},
    {U"repeatcount", U"repeatCount"},
    {U"repeatdur", U"repeatDur"},
    {U"requiredextensions", U"requiredExtensions"},
    {U"requiredfeatures", U"requiredFeatures"},
    {U"specularconstant", U"specularConstant"},
    {U"specularexponent", U"specularExponent"},
    {U"spreadmethod", U"spreadMethod"},
    {U"startoffset", U"startOffset"},
    {U"stddeviation", U"stdDeviation"},
    {U"stitchtiles", U"stitchTiles"},
    {U"surfacescale", U"surfaceScale"},
    {U"systemlanguage", U"systemLanguage"},
    {U"tablevalues", U"tableValues"},
    {U"targetx", U"targetX"},
    {U"targety", U"targetY"},
    {U"textlength", U"textLength"},
    {U"viewbox", U"viewBox"},
    {U"viewtarget", U"viewTarget"},
    {U"xchannelselector", U"xChannelSelector"},
    {U"ychannelselector", U"yChannelSelector"},
    {U"zoomandpan", U"zoomAndPan"},
}};

template <std::size_t N> void Apply(const std::array<Rename, N>& table, std::u32string& name) {
    for (const Rename& r : table) {
        if (r.first == name) {
            name = r.second;
            return;
        }
    }
}

void AdjustForeignAttribute(NodeAttribute& a) {
    struct Prefixed {
        std::u32string_view qualified;
        AttributeNamespace ns;
        std::u32string_view local;
    };
    static constexpr std::array<Prefixed, 11> kPrefixed = {{
        {U"xlink:actuate", AttributeNamespace::XLink, U"actuate"},
        {U"xlink:arcrole", AttributeNamespace::XLink, U"arcrole"},
        {U"xlink:href", AttributeNamespace::XLink, U"href"},
        {U"xlink:role", AttributeNamespace::XLink, U"role"},
        {U"xlink:show", AttributeNamespace::XLink, U"show"},
        {U"xlink:title", AttributeNamespace::XLink, U"title"},
        {U"xlink:type", AttributeNamespace::XLink, U"type"},
        {U"xml:lang", AttributeNamespace::Xml, U"lang"},
        {U"xml:space", AttributeNamespace::Xml, U"space"},
        {U"xmlns", AttributeNamespace::Xmlns, U"xmlns"},
        {U"xmlns:xlink", AttributeNamespace::Xmlns, U"xlink"},
    }};
    for (const Prefixed& p : kPrefixed) {
        if (p.qualified == a.name) {
            a.ns = p.ns;
            a.name = p.local;
            return;
        }
    }
}

// Start tags that break out of foreign content back into HTML.
bool BreaksOut(const Token& t) {
    switch (TagOf(t)) {
    case Tag::B:
    case Tag::Big:
    case Tag::Blockquote:
    case Tag::Body:
    case Tag::Br:
    case Tag::Center:
    case Tag::Code:
    case Tag::Dd:
    case Tag::Div:
    case Tag::Dl:
    case Tag::Dt:
    case Tag::Em:
    case Tag::Embed:
    case Tag::H1:
    case Tag::H2:
    case Tag::H3:
    case Tag::H4:
    case Tag::H5:
    case Tag::H6:
    case Tag::Head:
    case Tag::Hr:
    case Tag::I:
    case Tag::Img:
    case Tag::Li:
    case Tag::Listing:
    case Tag::Menu:
    case Tag::Meta:
    case Tag::Nobr:
    case Tag::Ol:
    case Tag::P:
    case Tag::Pre:
    case Tag::Ruby:
    case Tag::S:
    case Tag::Small:
    case Tag::Span:
    case Tag::Strong:
    case Tag::Strike:
    case Tag::Sub:
    case Tag::Sup:
    case Tag::Table:
    case Tag::Tt:
    case Tag::U:
    case Tag::Ul:
    case Tag::Var:
        return true;
    case Tag::Font:
        return TokenAttribute(t, U"color") || TokenAttribute(t, U"face") ||
               TokenAttribute(t, U"size");
    default:
        return false;
    }
}

std::u32string LowerAscii(std::u32string_view s) {
    std::u32string out(s);
    std::transform(out.begin(), out.end(), out.begin(), ToAsciiLower);
    return out;
}

} // namespace

bool EqualsIgnoringAsciiCase(std::u32string_view a, std::u32string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [](char32_t x, char32_t y) { return ToAsciiLower(x) == ToAsciiLower(y); });
}

const std::u32string* TokenAttribute(const Token& t, std::u32string_view name) {
    for (const html::Attribute& a : t.attributes)
        if (a.name == name) return &a.value;
    return nullptr;
}

bool IsHtmlIntegrationPoint(const Node* n) {
    if (n->kind != NodeKind::Element) return false;
    if (n->ns == Namespace::MathMl && n->tag == Tag::AnnotationXml) {
        const std::u32string* enc = n->Attribute(U"encoding");
        return enc && (EqualsIgnoringAsciiCase(*enc, U"text/html") ||
                       EqualsIgnoringAsciiCase(*enc, U"application/xhtml+xml"));
    }
    return n->ns == Namespace::Svg &&
           (n->tag == Tag::ForeignObject || n->tag == Tag::Desc || n->tag == Tag::Title);
}

void TreeBuilder::InsertForeignElement(Token& t, Namespace ns) {
    if (ns == Namespace::Svg) Apply(kSvgTagNames, t.name);
    Node* n = InsertElement(t, ns);
    for (NodeAttribute& a : n->attributes) {
        if (ns == Namespace::MathMl && a.name == U"definitionurl") a.name = U"definitionURL";
        if (ns == Namespace::Svg) Apply(kSvgAttributeNames, a.name);
        AdjustForeignAttribute(a);
    }
    if (t.selfClosing && n->onStack) Pop();
}

void TreeBuilder::ForeignCharacters(std::u32string_view text) {
    std::u32string fixed(text);
    std::replace(fixed.begin(), fixed.end(), U'\0', U'\uFFFD');
    InsertCharacters(fixed);
    const bool visible =
        std::any_of(text.begin(), text.end(), [](char32_t c) { return c != 0 && !IsHtmlSpace(c); });
    if (visible) framesetOk_ = false;
}

void TreeBuilder::ForeignContent(Token& t) {
    switch (t.kind) {
    case TokenKind::Comment:
        return InsertComment(t);
    case TokenKind::Doctype:
        return;
    case TokenKind::StartTag:
        if (!BreaksOut(t)) return InsertForeignElement(t, AdjustedCurrent()->ns);
        break;
    case TokenKind::EndTag:
        if (t.name != U"br" && t.name != U"p") return ForeignEndTag(t);
        break;
    default:
        return;
    }
    while (stack_.size() > 1 && !IsMathMlTextIntegrationPoint(Current()) &&
           !IsHtmlIntegrationPoint(Current()) && Current()->ns != Namespace::Html)
        Pop();
    ProcessIn(mode_, t);
}

void TreeBuilder::ForeignEndTag(Token& t) {
    for (std::size_t i = stack_.size(); i-- > 1;) {
        Node* node = stack_[i];
        if (i != stack_.size() - 1 && node->ns == Namespace::Html) return ProcessIn(mode_, t);
        if (LowerAscii(node->name) == t.name) {
            while (stack_.size() > i)
                Pop();
            return;
        }
    }
}

} // namespace html
