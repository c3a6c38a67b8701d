// The recogniser library as the program loads it: content in, format code out.
#include "Fixtures.h"
#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "intake/detfile/DetectFileFormat.h"
#include "intake/detfile/FileSample.h"
#include "intake/detfile/Recognise.h"
#include "intake/detfile/TextScore.h"
#include "support/TempDir.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orvane {
namespace {

using namespace std::string_literals;

struct Case {
    const char* label;
    std::string bytes;
    const char* code;
    const char* description = nullptr; // checked where given
};

void PrintTo(const Case& c, std::ostream* os) {
    *os << c.label;
}

std::string Filler(std::size_t n) {
    return std::string(n, '\x01');
}

std::string Ftyp(const std::string& brand) {
    return "\0\0\0\x1C"s + "ftyp" + brand + Filler(20);
}

std::string Utf16LE(const std::string& ascii) {
    std::string out = "\xFF\xFE";
    for (char c : ascii)
        out += std::string(1, c) + '\0';
    return out;
}

std::string Zip(const std::vector<std::pair<std::string, std::string>>& entries) {
    test::ZipBuilder zip;
    for (const auto& [name, data] : entries)
        zip.Add(name, data);
    test::TempDir dir;
    zip.WriteTo(dir.Path() + "z");
    std::ifstream in(dir.Path() + "z", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

class Recogniser : public ::testing::TestWithParam<Case> {
  protected:
    void SetUp() override { gAppPath = ORVANE_BIN_DIR; }
    test::TempDir dir;
};

TEST_P(Recogniser, TellsTheFormatFromTheContent) {
    const Case& c = GetParam();
    const std::string path = dir.Write("sample.dat", c.bytes);
    std::string format, description, reason;
    short known = -1;
    const bool ok = modDetFile::DetectFileFormat(path, format, description, known, reason);
    EXPECT_EQ(format, c.code);
    EXPECT_EQ(ok, format[0] != '!');
    if (c.description) {
        EXPECT_EQ(description, c.description);
    }
}

const std::string kSvgRoot = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\"/>";

INSTANTIATE_TEST_SUITE_P(
    Markup, Recogniser,
    ::testing::Values(
        Case{"doctype", "<!DOCTYPE html>\n<title>x</title>", "HTML", "HTML Document"},
        Case{"bom, space, upper case", "\xEF\xBB\xBF  \r\n\t<HTML><BODY>Hi", "HTML"},
        Case{"comment first", "<!-- (c) 2001 -->\n<html lang=en>", "HTML"},
        Case{"common tag first", "<Table><tr><td>1</td></tr></Table>", "HTML"},
        Case{"html 4 doctype", "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">", "HTML"},
        Case{"utf-16 page", Utf16LE("<html><p>\xE9t\xE9</p>"), "HTML"},
        Case{"custom element", "<my-widget></my-widget>", "HTML"},
        Case{"inline svg fragment", "<svg><circle r=\"1\"/></svg>", "HTML"},
        Case{"php before doctype", "<?php if ($a > 1) { ?>\n<!DOCTYPE html><p>", "HTML"},
        Case{"asp before html", "<%@ Page Language=\"C#\" %>\n<html><body>", "HTML"},
        Case{"xhtml", "<?xml version=\"1.0\"?>\n<html xmlns=\"http://www.w3.org/1999/xhtml\">",
             "HTML", "XHTML Document"},
        Case{"xhtml doctype", "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\" \"x\">",
             "HTML", "XHTML Document"},
        Case{"svg with declaration", "<?xml version='1.0'?>\n<!-- icon -->\n" + kSvgRoot, "SVG"},
        Case{"svg by namespace", kSvgRoot, "SVG"},
        Case{"xml", "<?xml version=\"1.0\"?><!DOCTYPE note SYSTEM \"n.dtd\"><note/>", "XML"},
        Case{"text before tags", "Hello <b>world</b>\n", "ASC"},
        Case{"address in brackets", "<john@example.com> wrote:\n> hi\n", "ASC"},
        Case{"unknown first tag", "<x>y</x>", "ASC"},
        Case{"code with includes", "#include <vector>\nint main() { return 0; }\n", "ASC"},
        Case{"html mentioned in code", "s = '''\n<html><body></body></html>'''\n", "ASC"}));

INSTANTIATE_TEST_SUITE_P(
    Text, Recogniser,
    ::testing::Values(
        Case{"ascii", "plain words\r\nand lines\n", "ASC", "ASCII Text"},
        Case{"utf-8", "caf\xC3\xA9 \xE2\x82\xAC\n", "ASC", "Unicode Text (UTF-8)"},
        Case{"windows-1252", "caf\xE9 \x80 na\xEFve\n", "ASC", "ANSI Text (Windows-1252)"},
        Case{"utf-16", Utf16LE("two words\r\n"), "ASC", "Unicode Text (UTF-16)"},
        Case{"a word like a magic: MZ",
             "MZ-80 home computer: a machine of 1979 with a Z80 processor and cassette drive\n",
             "ASC"},
        Case{"a word like a magic: BM", "BMW and Audi and more cars\n", "ASC"},
        Case{"a word like a magic: ID3", "ID3 tags hold the title\n", "ASC"},
        Case{"a word like a magic: OTTO", "OTTO was here\n", "ASC"},
        Case{"a word like a magic: BZh", "BZh9 is how bzip2 starts\n", "ASC"}));

// The plain signatures are one table; these rows hold the ones with more to them than a prefix.
INSTANTIATE_TEST_SUITE_P(
    Binary, Recogniser,
    ::testing::Values(Case{"pdf", "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n1 0 obj", "PDF"},
                      Case{"rtf", "{\\rtf1\\ansi\\deff0 {\\fonttbl}}", "RTF"},
                      Case{"png", "\x89PNG\r\n\x1A\n"s + Filler(40), "PNG"},
                      Case{"webp", "RIFF\x24\0\0\0WEBPVP8 "s + Filler(20), "WEBP"},
                      Case{"wave", "RIFF\x24\0\0\0WAVEfmt "s + Filler(20), "WAV"},
                      Case{"bmp", test::Bitmap(), "BMP"},
                      Case{"ico", "\0\0\1\0\1\0\x10\x10\0\0"s + Filler(30), "ICO"},
                      Case{"avif", Ftyp("avif"), "AVIF"}, Case{"mp4", Ftyp("isom"), "MP4"},
                      Case{"mp3", "ID3\x03\0\0\0\0\0\x10"s + Filler(20), "MP3"},
                      Case{"exe", test::PortableExecutable(false), "EXE"},
                      Case{"dll", test::PortableExecutable(true), "DLL"},
                      Case{"wasm", "\0asm\1\0\0\0"s, "WASM"}));

INSTANTIATE_TEST_SUITE_P(
    Containers, Recogniser,
    ::testing::Values(
        Case{"zip", Zip({{"a.txt", "x"}, {"b/c.txt", "y"}}), "ZIP", "ZIP Archive"},
        Case{"docx",
             Zip({{"[Content_Types].xml", "<x/>"},
                  {"_rels/.rels", ""},
                  {"word/document.xml", "<w/>"}}),
             "DOCX"},
        Case{"xlsx", Zip({{"[Content_Types].xml", ""}, {"xl/workbook.xml", ""}}), "XLSX"},
        Case{"pptx", Zip({{"[Content_Types].xml", ""}, {"ppt/presentation.xml", ""}}), "PPTX"},
        Case{"odt", Zip({{"mimetype", "application/vnd.oasis.opendocument.text"}}), "ODT"},
        Case{"ods", Zip({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}}), "ODS"},
        Case{"epub", Zip({{"mimetype", "application/epub+zip"}, {"OEBPS/a.xhtml", ""}}), "EPUB"},
        Case{"jar", Zip({{"META-INF/MANIFEST.MF", "Manifest-Version: 1.0"}}), "JAR"},
        Case{"docx cut before its directory",
             Zip({{"[Content_Types].xml", ""}, {"word/document.xml", ""}}).substr(0, 120), "DOCX"},
        Case{"zip cut inside its first header", Zip({{"mimetype", "x"}}).substr(0, 27), "ZIP"},
        Case{"doc", test::CompoundFile({"1Table", "WordDocument"}), "DOC"},
        Case{"xls", test::CompoundFile({"Workbook"}), "XLS"},
        Case{"ppt", test::CompoundFile({"Current User", "PowerPoint Document"}), "PPT"},
        Case{"doc, stream in the second directory sector",
             test::CompoundFile({"\5SummaryInformation", "Data", "1Table", "ObjectPool",
                                 "WordDocument"}),
             "DOC"},
        Case{"other compound file", test::CompoundFile({"Contents"}), "OLE2"}));

INSTANTIATE_TEST_SUITE_P(Failures, Recogniser,
                         ::testing::Values(Case{"empty", "", "!EMPTY"},
                                           Case{"binary of no known kind",
                                                "\x01\x02\x03\x04\x00\xFF\xFE"s + Filler(30),
                                                "!UNK"}));

class RecogniserFiles : public ::testing::Test {
  protected:
    void SetUp() override { gAppPath = ORVANE_BIN_DIR; }
    std::string CodeOf(const std::string& path) {
        std::string format, description, reason;
        short known = -1;
        modDetFile::DetectFileFormat(path, format, description, known, reason);
        return format;
    }
    test::TempDir dir;
};

TEST_F(RecogniserFiles, WhatCannotBeReadIsAnOpenError) {
    EXPECT_EQ(CodeOf(dir.Path() + "missing.txt"), "!FERR");
    EXPECT_EQ(CodeOf(dir.Path()), "!FERR");
    const std::string fifo = dir.Path() + "pipe";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_EQ(CodeOf(fifo), "!FERR");        // refused, not waited on
    EXPECT_EQ(CodeOf("/dev/zero"), "!FERR"); // endless
    EXPECT_EQ(CodeOf("/dev/null"), "!FERR");
}

TEST_F(RecogniserFiles, FailureCodesComeWithTheirReasons) {
    std::string format, description, reason = "before";
    short known = -1;
    EXPECT_FALSE(
        modDetFile::DetectFileFormat(dir.Write("e.txt", ""), format, description, known, reason));
    EXPECT_EQ(reason, "File is empty.");
    EXPECT_EQ(known, 0);
    EXPECT_EQ(description, "Empty File");
    modDetFile::DetectFileFormat(dir.Path() + "none", format, description, known, reason);
    EXPECT_EQ(reason, "Error opening the file.");
    modDetFile::DetectFileFormat(dir.Write("u", "\x01\x02\x03"), format, description, known,
                                 reason);
    EXPECT_EQ(reason, "Unrecognized file format.");
}

// A large file costs its head, or its head and tail and directory, never its whole length.
TEST_F(RecogniserFiles, AFiftyMegabyteFileIsNotReadWhole) {
    constexpr std::uint64_t kSize = 50ull << 20;
    const std::string text = dir.Write("big.txt", std::string(100000, 'a'));
    ASSERT_EQ(::truncate(text.c_str(), kSize), 0);
    const detfile::Recognition r = detfile::RecogniseFile(text);
    EXPECT_EQ(r.format.code, "ASC");
    EXPECT_LE(r.bytesRead, detfile::kHeadBytes);

    detfile::FileSample sample;
    ASSERT_TRUE(sample.Open(text));
    EXPECT_LT(detfile::ScoreFile(sample, true).score, 98); // the zeros beyond the head count
    EXPECT_LE(sample.BytesRead(), detfile::kWholeFileReadLimit);

    test::ZipBuilder zip;
    zip.Add("[Content_Types].xml", "<Types/>");
    zip.Add("word/media/movie.bin", "", kSize);
    zip.Add("word/document.xml", "<w:document/>");
    zip.WriteTo(dir.Path() + "big.docx");
    const detfile::Recognition docx = detfile::RecogniseFile(dir.Path() + "big.docx");
    EXPECT_EQ(docx.format.code, "DOCX");
    EXPECT_LE(docx.bytesRead, 3 * detfile::kHeadBytes);
}

TEST_F(RecogniserFiles, CommandLinePrintsCodeAndDescription) {
    const std::string pdf = dir.Write("a.pdf", "%PDF-1.4\n");
    const auto run = [](const std::string& args, std::string& out) {
        FILE* p = ::popen((std::string(ORVANE_BIN_DIR) + "detfile " + args).c_str(), "r");
        char buf[256];
        out.clear();
        while (std::fgets(buf, sizeof buf, p))
            out += buf;
        return WEXITSTATUS(::pclose(p));
    };
    std::string out;
    EXPECT_EQ(run("'" + pdf + "'", out), 0);
    EXPECT_EQ(out, "PDF\nAdobe Portable Document Format (PDF)\n");
    EXPECT_EQ(run("'" + dir.Write("e", "") + "'", out), 1);
    EXPECT_EQ(out, "!EMPTY\nEmpty File\n");
    EXPECT_EQ(run("--score '" + dir.Write("t", "text\n") + "'", out), 0);
    EXPECT_EQ(out, "100\n");
}

} // namespace
} // namespace orvane
