// Linear work on hostile input, shown by counting the tokenizer's steps rather than timing:
// each shape is about five million characters, and a quadratic path would also run into
// CTest's timeout.
#include "intake/html/EncodingPrescan.h"
#include "intake/html/Tokenizer.h"
#include "intake/html/Utf8.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace std::string_literals;
using html::State;

constexpr std::size_t kSize = 5'000'000;

// A few reconsumptions per character are normal; more would mean going back over input.
constexpr std::size_t kStepsPerCharacter = 3;

std::u32string Repeat(std::u32string_view unit, std::size_t size = kSize) {
    std::u32string out;
    out.reserve(size + unit.size());
    while (out.size() < size)
        out += unit;
    return out;
}

struct Shape {
    const char* name;
    std::u32string input;
    State state = State::Data;
    const char32_t* lastStartTag = U"";
};

std::vector<Shape> Shapes() {
    return {
        {"unclosed comment", U"<!--" + Repeat(U"-!<!-")},
        {"lone less-than signs", Repeat(U"<")},
        {"end tag openers", Repeat(U"</<!")},
        {"near-miss references", Repeat(U"&CounterClockwiseContourIntegra")},
        {"references in a value", U"<a b=\"" + Repeat(U"&amp&notin&#x41")},
        {"huge numeric reference", U"&#x" + Repeat(U"F")},
        {"almost end tags", Repeat(U"</titl"), State::Rcdata, U"title"},
        {"script escapes", Repeat(U"<!--<script>-</script>--"), State::ScriptData, U"script"},
        {"long doctype", U"<!DOCTYPE a PUBLIC \"" + Repeat(U"x\0"s)},
        {"bogus doctype", U"<!DOCTYPE a x" + Repeat(U"'\"")},
        {"cdata brackets", Repeat(U"]]]"), State::CdataSection},
    };
}

TEST(TokenizerBounds, HostileShapesTakeLinearSteps) {
    for (const Shape& shape : Shapes()) {
        html::Tokenizer tokenizer(shape.input);
        tokenizer.SetState(shape.state);
        tokenizer.SetLastStartTag(shape.lastStartTag);
        std::size_t tokens = 0;
        for (html::Token t; tokenizer.Next(t);)
            ++tokens;
        EXPECT_GT(tokens, 0u) << shape.name;
        EXPECT_LE(tokenizer.Steps(), kStepsPerCharacter * shape.input.size() + 8) << shape.name;
    }
}

// A linear duplicate check per attribute would be ten billion comparisons here.
TEST(TokenizerBounds, HundredThousandAttributesAndTheirRepeats) {
    constexpr std::size_t kAttributes = 100'000;
    std::u32string input = U"<a";
    for (int round = 0; round < 2; ++round)
        for (std::size_t i = 0; i < kAttributes; ++i)
            input += U" a" + std::u32string(html::DecodeUtf8(std::to_string(i))) + U"=v";
    input += U">";
    html::Tokenizer tokenizer(input);
    html::Token tag;
    ASSERT_TRUE(tokenizer.Next(tag));
    EXPECT_EQ(tag.attributes.size(), kAttributes);
    EXPECT_EQ(tokenizer.Errors().size(), kAttributes);
    EXPECT_EQ(tag.attributes.back().name, U"a99999");
}

TEST(TokenizerBounds, PrescanOfManyRepeatedMetaAttributesFinishes) {
    std::string page = "<meta";
    while (page.size() < kSize)
        page += " http-equiv=x";
    page += " charset=koi8-r>";
    EXPECT_EQ(html::PrescanForEncoding(page), "koi8-r");
}

} // namespace
