#pragma once
// Generates HTML-like page sources and revised copies of them, seeded, for timing the differ:
// structure lines that repeat everywhere, text lines that are mostly unique.
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace linediff_bench {

using Lines = std::vector<std::string>;

class HtmlPairGenerator {
  public:
    explicit HtmlPairGenerator(std::uint64_t seed);

    // A page of about `lines` lines.
    Lines Page(std::size_t lines);
    // A copy with `fraction` of its lines edited at scattered places (replaced, deleted, or a
    // new line inserted after them).
    Lines ScatteredEdits(const Lines& page, double fraction);
    // A copy with `blocks` stretches of `fraction` of the page each, written anew.
    Lines RewrittenBlocks(const Lines& page, int blocks, double fraction);

  private:
    void Section(Lines& out);
    void Paragraph(Lines& out, const std::string& indent);
    void List(Lines& out, const std::string& indent);
    void Table(Lines& out, const std::string& indent);
    std::string Words(int count);
    std::string TextLine(const std::string& indent);
    std::size_t Below(std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_);
    }

    std::mt19937_64 rng_;
    std::vector<std::string> vocabulary_;
    std::size_t serial_ = 0;
};

std::string Join(const Lines& lines);

} // namespace linediff_bench
