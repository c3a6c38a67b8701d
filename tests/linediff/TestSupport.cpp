#include "TestSupport.h"

#include "LineHash.h"
#include "LineSplitter.h"

#include <charconv>
#include <fstream>
#include <iterator>

namespace linediff_test {

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

long ChangedLines(std::string_view output) {
    long n = 0;
    linediff::ForEachLine(output, [&](std::string_view l) {
        n += l.size() >= 2 && (l[0] == '<' || l[0] == '>') && l[1] == ' ';
    });
    return n;
}

namespace {

struct Range {
    std::size_t first = 0, last = 0; // lines counted from 1; last < first when empty
};

// Reads "7" or "7,9" from the front of `s`.
bool ReadRange(std::string_view& s, Range& r) {
    auto read = [&](std::size_t& v) {
        auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
        if (ec != std::errc()) return false;
        s.remove_prefix(std::size_t(p - s.data()));
        return true;
    };
    if (!read(r.first)) return false;
    r.last = r.first;
    if (!s.empty() && s[0] == ',') return s.remove_prefix(1), read(r.last) && r.last > r.first;
    return true;
}

class HunkChecker {
  public:
    HunkChecker(std::string_view a, std::string_view b, const linediff::Options& o)
        : a_(linediff::SplitLines(a)), b_(linediff::SplitLines(b)), options_(o),
          aIncomplete_(!a.empty() && a.back() != '\n'),
          bIncomplete_(!b.empty() && b.back() != '\n') {}

    std::string Run(std::string_view output) {
        out_ = linediff::SplitLines(output);
        while (k_ < out_.size()) {
            std::string problem = Hunk();
            if (!problem.empty()) return problem + " at output line " + std::to_string(k_ + 1);
        }
        return Unchanged(a_.size(), b_.size());
    }

  private:
    std::string Hunk() {
        std::string_view h = out_[k_++];
        Range l, r;
        if (!ReadRange(h, l) || h.empty()) return "bad hunk line";
        char kind = h[0];
        h.remove_prefix(1);
        if (!ReadRange(h, r) || !h.empty() || (kind != 'a' && kind != 'd' && kind != 'c'))
            return "bad hunk line";
        if (kind == 'a') l = {l.first + 1, l.first};
        if (kind == 'd') r = {r.first + 1, r.first};
        if (l.first == 0 || r.first == 0) return "line 0 in a range";
        std::string problem = Unchanged(l.first - 1, r.first - 1);
        if (!problem.empty()) return problem;
        if (!Shown(a_, aIncomplete_, l, "< ")) return "Original lines not shown as they are";
        if (kind == 'c' && (k_ >= out_.size() || out_[k_++] != "---")) return "missing ---";
        if (!Shown(b_, bIncomplete_, r, "> ")) return "Revised lines not shown as they are";
        i_ = l.last, j_ = r.last;
        return {};
    }

    // Lines i_..i and j_..j (from 0) lie outside hunks: they must pair up equal.
    std::string Unchanged(std::size_t i, std::size_t j) {
        if (i < i_ || j < j_ || i > a_.size() || j > b_.size() || i - i_ != j - j_)
            return "hunks out of order or out of range";
        for (; i_ < i; ++i_, ++j_) {
            bool endsDiffer = options_.ignoreWhiteSpace ? false
                                                        : (aIncomplete_ && i_ + 1 == a_.size()) !=
                                                              (bIncomplete_ && j_ + 1 == b_.size());
            if (endsDiffer || !linediff::LinesEqual(a_[i_], b_[j_], options_))
                return "unequal lines outside hunks: Original " + std::to_string(i_ + 1);
        }
        return {};
    }

    bool Shown(const std::vector<std::string_view>& lines, bool incomplete, Range r,
               std::string_view prefix) {
        for (std::size_t n = r.first; n <= r.last; ++n) {
            if (n > lines.size() || k_ >= out_.size()) return false;
            if (out_[k_++] != std::string(prefix) + std::string(lines[n - 1])) return false;
            if (incomplete && n == lines.size() &&
                (k_ >= out_.size() || out_[k_++] != "\\ No newline at end of file"))
                return false;
        }
        return true;
    }

    std::vector<std::string_view> a_, b_, out_;
    linediff::Options options_;
    bool aIncomplete_, bIncomplete_;
    std::size_t i_ = 0, j_ = 0, k_ = 0;
};

std::string Join(const std::vector<std::string>& lines, bool finalLf) {
    std::string s;
    for (std::size_t i = 0; i < lines.size(); ++i)
        s += lines[i] + (i + 1 < lines.size() || finalLf ? "\n" : "");
    return s;
}

} // namespace

std::string CheckHunks(std::string_view a, std::string_view b, std::string_view output,
                       const linediff::Options& options) {
    return HunkChecker(a, b, options).Run(output);
}

TextPair RandomPair(std::mt19937_64& rng, const std::vector<std::string>& alphabet,
                    std::size_t maxLines) {
    auto below = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng);
    };
    auto pick = [&] { return alphabet[below(alphabet.size())]; };
    std::vector<std::string> a(below(maxLines + 1));
    for (auto& line : a)
        line = pick();
    std::vector<std::string> b = a;
    if (below(5) == 0) {
        b.resize(below(maxLines + 1));
        for (auto& line : b)
            line = pick();
    } else {
        for (std::size_t e = below(a.size() / 3 + 2); e > 0; --e) {
            std::size_t at = below(b.size() + 1);
            switch (below(3)) {
            case 0:
                if (at < b.size()) b.erase(b.begin() + std::ptrdiff_t(at));
                break;
            case 1:
                b.insert(b.begin() + std::ptrdiff_t(at), pick());
                break;
            default:
                if (at < b.size()) b[at] = pick();
            }
        }
    }
    return {Join(a, below(4) != 0), Join(b, below(4) != 0)};
}

} // namespace linediff_test
