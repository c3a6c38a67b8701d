// Labels, the <meta> content rule, sniffing order and decoding, beyond the html5lib data.
#include "TokenizerCases.h"
#include "intake/html/Decoder.h"
#include "intake/html/EncodingLabels.h"
#include "intake/html/EncodingPrescan.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

TEST(EncodingLabels, IgnoreCaseAndSurroundingWhitespace) {
    EXPECT_EQ(html::GetEncoding(" Latin1\t"), "windows-1252");
    EXPECT_EQ(html::GetEncoding("UTF8"), "utf-8");
    EXPECT_EQ(html::GetEncoding("x-sjis"), "shift_jis");
    EXPECT_EQ(html::GetEncoding("utf 8"), "");
    EXPECT_EQ(html::GetEncoding(""), "");
    EXPECT_EQ(html::EncodingNames().size(), 40u);
}

TEST(EncodingLabels, EveryEncodingHasARealDecoder) {
    for (std::string_view name : html::EncodingNames())
        EXPECT_TRUE(html::HasDecoder(name)) << name;
}

TEST(MetaContent, FindsTheCharsetParameter) {
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("text/html; charset=koi8-r"), "koi8-r");
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("CHARSET = 'utf-8' ; x"), "utf-8");
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("charsetx; charset=latin2;"), "iso-8859-2");
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("charset=\"utf-8"), "");
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("charset="), "");
    EXPECT_EQ(html::ExtractEncodingFromMetaContent("text/html"), "");
}

TEST(Prescan, ReadsUtf16XmlDeclarationsAndMapsTheUnusable) {
    EXPECT_EQ(html::PrescanForEncoding("<\0?\0x\0m\0l\0"s), "utf-16le");
    EXPECT_EQ(html::PrescanForEncoding("\0<\0?\0x\0m\0l"s), "utf-16be");
    EXPECT_EQ(html::PrescanForEncoding("<meta charset=x-user-defined>"), "windows-1252");
    EXPECT_EQ(html::PrescanForEncoding("<p title='<meta charset=koi8-r>'>"), "");
}

struct SniffCase {
    std::string bytes;
    std::string_view encoding;
    html::EncodingSource source;
};

void PrintTo(const SniffCase& c, std::ostream* os) {
    *os << Slug(c.bytes);
}

class Sniff : public testing::TestWithParam<SniffCase> {};

TEST_P(Sniff, TakesBomThenMetaThenUtf8ThenWindows1252) {
    const html::EncodingGuess guess = html::SniffEncoding(GetParam().bytes);
    EXPECT_EQ(guess.encoding, GetParam().encoding);
    EXPECT_EQ(guess.source, GetParam().source);
}

using Src = html::EncodingSource;
INSTANTIATE_TEST_SUITE_P(
    Order, Sniff,
    testing::Values(SniffCase{"\xEF\xBB\xBF<meta charset=koi8-r>", "utf-8", Src::ByteOrderMark},
                    SniffCase{"\xFF\xFE<\0"s, "utf-16le", Src::ByteOrderMark},
                    SniffCase{"\xFE\xFF\0<"s, "utf-16be", Src::ByteOrderMark},
                    SniffCase{"<meta charset=koi8-r>\xC3\xA9", "koi8-r", Src::MetaPrescan},
                    SniffCase{"caf\xC3\xA9", "utf-8", Src::Utf8Content},
                    SniffCase{"caf\xE9", "windows-1252", Src::Default},
                    SniffCase{"plain", "windows-1252", Src::Default}));

struct DecodeCase {
    std::string bytes;
    std::string_view encoding;
    std::u32string text;
};

void PrintTo(const DecodeCase& c, std::ostream* os) {
    *os << Slug(c.encoding) << "_" << Slug(c.bytes);
}

class Decode : public testing::TestWithParam<DecodeCase> {};

TEST_P(Decode, GivesCharactersAndReplacesWhatCannotBeDecoded) {
    EXPECT_EQ(html::DecodeBytes(GetParam().bytes, GetParam().encoding), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Utf8, Decode,
    testing::Values(DecodeCase{"a\xC3\xA9\xF0\x9F\x98\x80", "utf-8", U"a\u00E9\U0001F600"},
                    DecodeCase{"a\xFF"
                               "b",
                               "utf-8", U"a\uFFFDb"},
                    DecodeCase{"\xF0\x9F\x98", "utf-8", U"\uFFFD"},   // cut short: one
                    DecodeCase{"\xC0\x80", "utf-8", U"\uFFFD\uFFFD"}, // overlong: each byte
                    DecodeCase{"\xED\xA0\x80", "utf-8", U"\uFFFD\uFFFD\uFFFD"}, // surrogate
                    DecodeCase{"\xE2\x82"
                               "a",
                               "utf-8", U"\uFFFDa"}));

INSTANTIATE_TEST_SUITE_P(Legacy, Decode,
                         testing::Values(DecodeCase{"\x80\x81\x9F\xE9", "windows-1252",
                                                    U"\u20AC\u0081\u0178\u00E9"},
                                         DecodeCase{"\xA1", "iso-8859-2", U"\u0104"},
                                         DecodeCase{"\xC6\xFC\xCB\xDC", "euc-jp", U"\u65E5\u672C"},
                                         DecodeCase{"\x1B$BF|\x1B(Bx", "iso-2022-jp", U"\u65E5x"},
                                         DecodeCase{"a\xFF"
                                                    "b\x93\xFA",
                                                    "shift_jis", U"a\uFFFDb\u65E5"},
                                         DecodeCase{"\xA4\xA4", "big5", U"\u4E2D"},
                                         DecodeCase{"\x80\x41", "x-user-defined", U"\uF780A"},
                                         DecodeCase{"abc", "replacement", U"\uFFFD"}));

INSTANTIATE_TEST_SUITE_P(
    Utf16, Decode,
    testing::Values(DecodeCase{"h\0i\0"s, "utf-16le", U"hi"},
                    DecodeCase{"\0h\0i"s, "utf-16be", U"hi"},
                    DecodeCase{"=\xD8=\xDE"s, "utf-16le", U"\U0001F63D"},
                    DecodeCase{"\x00\xD8h\0"s, "utf-16le", U"\uFFFDh"}, // lone surrogate
                    DecodeCase{"h\0i"s, "utf-16le", U"h\uFFFD"}));      // odd last byte

TEST(DecodeDocument, DropsTheByteOrderMark) {
    const html::DecodedDocument doc = html::DecodeDocument("\xFF\xFEh\0i\0"s);
    EXPECT_EQ(doc.text, U"hi");
    EXPECT_EQ(doc.guess.encoding, "utf-16le");
    EXPECT_EQ(html::DecodeDocument("\xEF\xBB\xBFok").text, U"ok");
    EXPECT_EQ(html::DecodeDocument("<meta charset=koi8-r>\xC1").text,
              U"<meta charset=koi8-r>\u0430");
}

} // namespace
