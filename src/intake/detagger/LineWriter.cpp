#include "intake/detagger/LineWriter.h"

#include "intake/detagger/CharacterPolicy.h"
#include "intake/html/Utf8.h"

#include <algorithm>

namespace detagger {
namespace {

// Text files this engine writes follow the program's convention for generated files.
constexpr std::string_view kLineEnd = "\r\n";

class Writer {
  public:
    explicit Writer(const Policies& p) : p_(p) {}

    void Block(const TextBlock& b) {
        if (b.blankBefore) EndLine({});
        const std::u32string lead = std::u32string(static_cast<std::size_t>(b.indent), U' ');
        std::u32string first = lead + b.prefix;
        const std::u32string rest(first.size(), U' ');
        std::size_t from = 0;
        bool firstLine = true;
        while (from <= b.text.size()) {
            std::size_t to = from;
            while (to < b.text.size() && !IsBreak(b.text[to], b.preformatted))
                ++to;
            std::u32string line = MapCharacters(std::u32string_view(b.text).substr(from, to - from),
                                                p_.allow8Bit, p_.allowAlternatives);
            if (!b.preformatted) std::replace(line.begin(), line.end(), kSoftBreak, U' ');
            Emit(firstLine ? first : rest, line, b.preformatted);
            firstLine = false;
            from = to + 1;
        }
    }

    void References(const std::vector<std::u32string>& refs) {
        if (refs.empty()) return;
        EndLine({});
        EndLine(U"References");
        EndLine({});
        for (std::size_t i = 0; i < refs.size(); ++i) {
            const std::string n = std::to_string(i + 1);
            EndLine(std::u32string(n.begin(), n.end()) + U". " +
                    MapCharacters(refs[i], p_.allow8Bit, p_.allowAlternatives));
        }
    }

    std::string Take() { return std::move(out_); }

  private:
    bool IsBreak(char32_t c, bool pre) const {
        return c == kHardBreak || (c == kSoftBreak && !pre && !p_.singleLineParagraphs);
    }

    void Emit(const std::u32string& lead, std::u32string_view line, bool pre) {
        if (!p_.imposePageWidth) return EndLine(lead + std::u32string(line));
        const std::size_t width = static_cast<std::size_t>(p_.pageWidth);
        const std::size_t room = width > lead.size() + 1 ? width - lead.size() : 1;
        if (pre) return HardWrap(lead, line, room);
        WordWrap(lead, line, room);
    }

    void HardWrap(const std::u32string& lead, std::u32string_view line, std::size_t room) {
        do {
            EndLine(lead + std::u32string(line.substr(0, room)));
            line.remove_prefix(std::min(room, line.size()));
        } while (!line.empty());
    }

    // Greedy: as many words as fit; a word longer than the room has a line of its own.
    void WordWrap(const std::u32string& lead, std::u32string_view line, std::size_t room) {
        std::u32string current;
        const std::u32string follow(lead.size(), U' ');
        bool first = true;
        std::size_t at = 0;
        while (at < line.size()) {
            const std::size_t end = std::min(line.find(U' ', at), line.size());
            const std::u32string_view word = line.substr(at, end - at);
            at = end + 1;
            if (word.empty()) continue;
            if (!current.empty() && current.size() + 1 + word.size() > room) {
                EndLine((first ? lead : follow) + current);
                first = false;
                current.clear();
            }
            if (!current.empty()) current.push_back(U' ');
            current.append(word);
        }
        EndLine((first ? lead : follow) + current);
    }

    void EndLine(std::u32string_view line) {
        while (!line.empty() && line.back() == U' ')
            line.remove_suffix(1);
        out_ += html::EncodeUtf8(line);
        out_ += kLineEnd;
    }

    const Policies& p_;
    std::string out_;
};

} // namespace

std::string WriteLines(const Layout& layout, const Policies& policies) {
    Writer writer(policies);
    for (const TextBlock& b : layout.blocks)
        writer.Block(b);
    writer.References(layout.references);
    return writer.Take();
}

} // namespace detagger
