#include "report/PairGenerator.h"

#include <algorithm>
#include <cctype>
#include <random>
#include <vector>

namespace orvane::test {

namespace {

struct Run {
    int format = 0; // 0 plain, 1 b, 2 i, 3 link, 4 sup
    std::string href = "a.html";
    std::vector<std::string> words;
};
using Item = std::vector<Run>;
enum class Kind { P, H2, Ul, Table, Img, Div };
struct Block {
    Kind kind = Kind::P;
    std::vector<Item> items; // P/H2/Div: one; Ul: items; Table: cells, row by row
    int cols = 1;
    std::string src;
};

class Generator {
  public:
    explicit Generator(std::uint32_t seed) : rng_(seed) {}

    int Pick(int n) { return n <= 0 ? 0 : std::uniform_int_distribution<int>(0, n - 1)(rng_); }

    std::string Word() {
        static const char* words[] = {"alpha",  "beta",   "gamma", "delta", "the",  "of",
                                      "and",    "report", "page",  "table", "x<y",  "A&B",
                                      "value,", "end.",   "Zeta",  "héllo", "数据", "(note)",
                                      "42",     "—",      "a",     "is"};
        return words[Pick(sizeof words / sizeof *words)];
    }
    Run NewRun() {
        Run r;
        r.format = Pick(6) < 4 ? 0 : Pick(5);
        r.href = Pick(2) ? "a.html" : "b.html";
        for (int n = 1 + Pick(6); n > 0; --n)
            r.words.push_back(Word());
        return r;
    }
    Item NewItem() {
        Item it;
        for (int n = 1 + Pick(3); n > 0; --n)
            it.push_back(NewRun());
        return it;
    }
    Block NewBlock() {
        Block b;
        b.kind = static_cast<Kind>(Pick(6));
        b.src = "img" + std::to_string(Pick(4)) + ".png";
        int n = 1;
        if (b.kind == Kind::Ul) n = 1 + Pick(4);
        if (b.kind == Kind::Table) {
            b.cols = 1 + Pick(3);
            n = b.cols * (1 + Pick(3));
        }
        if (b.kind != Kind::Img)
            for (; n > 0; --n)
                b.items.push_back(NewItem());
        return b;
    }

    void Edit(std::vector<Block>& page) {
        if (page.empty() || Pick(8) == 0) {
            page.insert(page.begin() + Pick(int(page.size()) + 1), NewBlock());
            return;
        }
        Block& b = page[Pick(int(page.size()))];
        const int what = Pick(10);
        if (what == 0) {
            page.erase(page.begin() + (&b - page.data()));
        } else if (b.kind == Kind::Img || b.items.empty()) {
            b.src = "img" + std::to_string(Pick(4)) + ".png";
        } else if (b.kind == Kind::Ul && what <= 2) {
            const int at = Pick(int(b.items.size()) + 1);
            if (what == 1 && at < int(b.items.size()))
                b.items.erase(b.items.begin() + at);
            else
                b.items.insert(b.items.begin() + at, NewItem());
        } else if (b.kind == Kind::Table && what <= 2 && b.items.size() > std::size_t(b.cols)) {
            const int row = Pick(int(b.items.size()) / b.cols);
            if (what == 1)
                b.items.erase(b.items.begin() + row * b.cols, b.items.begin() + (row + 1) * b.cols);
            else
                for (int c = 0; c < b.cols; ++c)
                    b.items.insert(b.items.begin() + row * b.cols, NewItem());
        } else {
            EditItem(b.items[Pick(int(b.items.size()))]);
        }
    }

    void EditItem(Item& item) {
        if (item.empty()) {
            item.push_back(NewRun());
            return;
        }
        Run& r = item[Pick(int(item.size()))];
        switch (Pick(6)) {
        case 0:
            r.format = Pick(5);
            break;
        case 1:
            r.href = r.href == "a.html" ? "c.html" : "a.html";
            break;
        case 2:
            if (!r.words.empty()) r.words.erase(r.words.begin() + Pick(int(r.words.size())));
            break;
        case 3:
            r.words.insert(r.words.begin() + Pick(int(r.words.size()) + 1), Word());
            break;
        case 4:
            item.insert(item.begin() + Pick(int(item.size()) + 1), NewRun());
            break;
        default:
            if (!r.words.empty()) r.words[Pick(int(r.words.size()))] = Word();
        }
    }

  private:
    std::mt19937 rng_;
};

std::string Escape(const std::string& s) {
    std::string out;
    for (char c : s)
        out += c == '<' ? "&lt;" : c == '&' ? "&amp;" : std::string(1, c);
    return out;
}

std::string Render(const Item& item) {
    std::string out;
    for (const Run& r : item) {
        std::string words;
        for (const auto& w : r.words)
            words += (words.empty() ? "" : " ") + Escape(w);
        static const char* open[] = {"", "<b>", "<i>", "", "<sup>"};
        static const char* close[] = {"", "</b>", "</i>", "</a>", "</sup>"};
        out += r.format == 3 ? "<a href=\"" + r.href + "\">" : open[r.format];
        out += words + close[r.format] + " ";
    }
    return out;
}

std::string Render(const std::vector<Block>& page) {
    std::string out = "<!DOCTYPE html><html><head><title>t</title></head><body>\n";
    for (const Block& b : page) {
        switch (b.kind) {
        case Kind::P:
            out += "<p>" + Render(b.items[0]) + "</p>\n";
            break;
        case Kind::H2:
            out += "<h2>" + Render(b.items[0]) + "</h2>\n";
            break;
        case Kind::Div:
            out += "<div><p>" + Render(b.items[0]) + "</p></div>\n";
            break;
        case Kind::Img:
            out += "<img src=\"" + b.src + "\" alt=\"\">\n";
            break;
        case Kind::Ul:
            out += "<ul>\n";
            for (const auto& it : b.items)
                out += "  <li>" + Render(it) + "</li>\n";
            out += "</ul>\n";
            break;
        case Kind::Table:
            out += "<table>\n";
            for (std::size_t k = 0; k < b.items.size(); ++k) {
                if (k % b.cols == 0) out += "  <tr>";
                out += "<td>" + Render(b.items[k]) + "</td>";
                if (k % b.cols == std::size_t(b.cols - 1) || k + 1 == b.items.size())
                    out += "</tr>\n";
            }
            out += "</table>\n";
            break;
        }
    }
    return out + "</body></html>\n";
}

} // namespace

std::pair<std::string, std::string> GeneratePair(std::uint32_t seed, int edits) {
    Generator g(seed);
    std::vector<Block> page;
    for (int n = 2 + g.Pick(10); n > 0; --n)
        page.push_back(g.NewBlock());
    const std::string original = Render(page);
    for (; edits > 0; --edits)
        g.Edit(page);
    return {original, Render(page)};
}

std::string EditPageText(const std::string& page, std::uint32_t seed, int edits) {
    Generator g(seed);
    // Text between tags outside script and style: the spans an edit may touch.
    std::vector<std::pair<std::size_t, std::size_t>> spans;
    std::size_t at = 0;
    while (at < page.size()) {
        const std::size_t lt = page.find('<', at);
        const std::size_t end = lt == std::string::npos ? page.size() : lt;
        // Only real text: words typed between a list's or table's tags would not be in the list.
        if (end > at + 3 && std::any_of(page.begin() + at, page.begin() + end, [](char c) {
                return std::isalpha(static_cast<unsigned char>(c));
            }))
            spans.emplace_back(at, end);
        if (lt == std::string::npos) break;
        std::size_t gt = page.find('>', lt);
        if (gt == std::string::npos) break;
        for (const char* raw : {"<script", "<style"}) {
            if (page.compare(lt, std::string(raw).size(), raw) == 0) {
                const std::size_t close = page.find(std::string("</") + (raw + 1), gt);
                if (close != std::string::npos) gt = page.find('>', close);
            }
        }
        if (gt == std::string::npos) break;
        at = gt + 1;
    }
    std::string out = page;
    std::vector<std::pair<std::size_t, std::string>> changes; // position, inserted text
    std::vector<std::pair<std::size_t, std::size_t>> cuts;
    for (int k = 0; k < edits && !spans.empty(); ++k) {
        const auto [b, e] = spans[g.Pick(int(spans.size()))];
        const std::string text = page.substr(b, e - b);
        const std::size_t space = text.find(' ', g.Pick(int(text.size())));
        if (space == std::string::npos) continue;
        if (g.Pick(2)) {
            changes.emplace_back(b + space, " " + g.Word());
        } else {
            const std::size_t next = text.find(' ', space + 1);
            if (next != std::string::npos && text.find('&', space) > next)
                cuts.emplace_back(b + space, next - space);
        }
    }
    // Applied from the end so that earlier positions stay valid.
    std::vector<std::pair<std::size_t, std::string>> all;
    for (auto& [p, s] : changes)
        all.emplace_back(p, s);
    for (auto& [p, n] : cuts)
        all.emplace_back(p, std::string("\x01") + std::to_string(n));
    std::sort(all.begin(), all.end(), [](auto& x, auto& y) { return x.first > y.first; });
    std::size_t last = std::string::npos;
    for (auto& [p, s] : all) {
        if (p == last) continue;
        last = p;
        if (s[0] == '\x01')
            out.erase(p, std::stoul(s.substr(1)));
        else
            out.insert(p, Escape(s));
    }
    return out;
}

} // namespace orvane::test
