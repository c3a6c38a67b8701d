#include "settings/ProfileFile.h"

#include "settings/AtomicWrite.h"

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <optional>
#include <string_view>
#include <unistd.h>
#include <vector>

// Nothing written can break the file's structure:
// - a value's CR and LF become blanks (a value can never start a line of its own);
// - a section or key holding CR or LF, a key holding '=' or starting with '[', and a name that
//   is empty after trimming cannot be stored: the write is refused and reads give the default.
// Brackets and '=' inside values, and brackets inside section names, need no rule: only a line
// that starts with '[' is a header, and the header's name runs to its last ']'.

namespace orvane::profile {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
// GetPrivateProfileInt reads through a string; any integer text fits in this.
constexpr std::size_t kIntegerTextSize = 64;

std::string CString(const std::string& s) {
    return s.substr(0, s.find('\0'));
}

std::string_view Trim(std::string_view s) {
    const auto first = s.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return s.substr(first, s.find_last_not_of(kBlanks) - first + 1);
}

std::string_view TrimRight(std::string_view s) {
    const auto last = s.find_last_not_of(kBlanks);
    return last == std::string_view::npos ? std::string_view{} : s.substr(0, last + 1);
}

char AsciiLower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (AsciiLower(a[i]) != AsciiLower(b[i])) return false;
    return true;
}

// The file's bytes; empty for a missing file, nullopt for one that exists but cannot be read.
std::optional<std::string> ReadWholeFile(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return errno == ENOENT ? std::optional<std::string>("") : std::nullopt;
    std::string bytes;
    char chunk[65536];
    for (;;) {
        const ssize_t n = read(fd, chunk, sizeof chunk);
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) {
            close(fd);
            return std::nullopt;
        }
        if (n == 0) break;
        bytes.append(chunk, static_cast<std::size_t>(n));
    }
    close(fd);
    return bytes;
}

struct PendingFile {
    std::optional<std::string> OnDisk; // as read when the batch opened; nullopt: unreadable
    std::string Bytes;                 // what the batch will write
};

std::map<std::string, PendingFile>& Batches() {
    static std::map<std::string, PendingFile> batches;
    return batches;
}

std::map<std::string, std::size_t>& Rewrites() {
    static std::map<std::string, std::size_t> rewrites;
    return rewrites;
}

// The file as the next read or write should see it: a batch's copy where one is open.
std::optional<std::string> CurrentBytes(const std::string& path) {
    const auto it = Batches().find(path);
    if (it == Batches().end()) return ReadWholeFile(path);
    if (!it->second.OnDisk) return std::nullopt;
    return it->second.Bytes;
}

bool Replace(const std::string& path, const std::string& bytes) {
    const auto it = Batches().find(path);
    if (it != Batches().end()) {
        it->second.Bytes = bytes;
        return true;
    }
    ++Rewrites()[path];
    return WriteFileAtomically(path, bytes);
}

// Lines without their LF or CRLF; a final line without an end counts as a line.
std::vector<std::string> SplitLines(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const auto lf = bytes.find('\n');
        std::string_view line = bytes.substr(0, lf);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.emplace_back(line);
        if (lf == std::string_view::npos) break;
        bytes.remove_prefix(lf + 1);
    }
    return lines;
}

std::optional<std::string_view> HeaderName(std::string_view line) {
    line = Trim(line);
    if (line.empty() || line.front() != '[') return std::nullopt;
    const auto close = line.rfind(']');
    if (close == std::string_view::npos) return std::nullopt;
    return Trim(line.substr(1, close - 1));
}

struct Entry {
    std::string_view Key;
    std::string_view Value;
};

std::optional<Entry> EntryOf(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    return Entry{Trim(line.substr(0, equals)), Trim(line.substr(equals + 1))};
}

std::string_view WithoutQuotes(std::string_view v) {
    if (v.size() >= 2 && (v.front() == '"' || v.front() == '\'') && v.back() == v.front())
        return v.substr(1, v.size() - 2);
    return v;
}

// Where a section and a key stand; -1 where absent. Last is the last non-blank line of the
// section (its header when it is empty), after which a new key goes.
struct Place {
    std::ptrdiff_t Header = -1;
    std::ptrdiff_t Entry = -1;
    std::ptrdiff_t Last = -1;
};

Place Locate(const std::vector<std::string>& lines, std::string_view section,
             std::string_view key) {
    Place p;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto name = HeaderName(lines[i]);
        if (name) {
            if (p.Header >= 0) break;
            if (EqualNoCase(*name, section)) p.Header = p.Last = static_cast<std::ptrdiff_t>(i);
            continue;
        }
        if (p.Header < 0) continue;
        if (!Trim(lines[i]).empty()) p.Last = static_cast<std::ptrdiff_t>(i);
        const auto entry = EntryOf(lines[i]);
        if (p.Entry < 0 && entry && EqualNoCase(entry->Key, key))
            p.Entry = static_cast<std::ptrdiff_t>(i);
    }
    return p;
}

std::vector<std::string> LinesOfFile(const std::string& bytes) {
    std::string_view view = bytes;
    if (view.starts_with(kUtf8Bom)) view.remove_prefix(kUtf8Bom.size());
    return SplitLines(view);
}

bool StorableSection(std::string_view name) {
    return !name.empty() && name.find_first_of("\r\n") == std::string_view::npos;
}

bool StorableKey(std::string_view name) {
    return !name.empty() && name.find_first_of("\r\n=") == std::string_view::npos &&
           name.front() != '[';
}

std::string StorableValue(std::string value) {
    for (char& c : value)
        if (c == '\r' || c == '\n') c = ' ';
    return value;
}

std::string JoinLines(const std::vector<std::string>& lines, bool bom) {
    std::string out = bom ? std::string(kUtf8Bom) : std::string();
    for (const auto& line : lines)
        out += line + "\r\n";
    return out;
}

} // namespace

std::size_t GetPrivateProfileString(const std::string& Section, const std::string& Key,
                                    const std::string& Default, std::string& ReturnedString,
                                    std::size_t Size, const std::string& FileName) {
    ReturnedString.clear();
    if (Size == 0) return 0;
    const auto bytes = CurrentBytes(CString(FileName));
    const auto lines = LinesOfFile(bytes.value_or(""));
    const std::string section = CString(Section), key = CString(Key);
    const Place p = Locate(lines, Trim(section), Trim(key));
    const std::string def = CString(Default);
    std::string_view text = TrimRight(def);
    if (p.Entry >= 0) text = WithoutQuotes(EntryOf(lines[p.Entry])->Value);
    ReturnedString = text.substr(0, Size - 1);
    return ReturnedString.size();
}

std::int32_t GetPrivateProfileInt(const std::string& Section, const std::string& Key,
                                  std::int32_t Default, const std::string& FileName) {
    std::string text;
    if (GetPrivateProfileString(Section, Key, "", text, kIntegerTextSize, FileName) == 0)
        return Default;
    std::size_t i = 0;
    const bool negative = text[0] == '-';
    if (text[0] == '-' || text[0] == '+') ++i;
    std::uint32_t value = 0; // unsigned: the platform's read wraps instead of failing
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
        value = value * 10u + static_cast<std::uint32_t>(text[i] - '0');
    if (negative) value = 0u - value;
    return static_cast<std::int32_t>(value);
}

bool WritePrivateProfileString(const std::string& Section, const std::string& Key,
                               const std::string& Value, const std::string& FileName) {
    const std::string section(Trim(CString(Section))), key(Trim(CString(Key)));
    if (!StorableSection(section) || !StorableKey(key)) return false;
    const std::string path = CString(FileName);
    const auto bytes = CurrentBytes(path);
    if (!bytes) return false; // never replace a file that could not be read
    auto lines = LinesOfFile(*bytes);
    const std::string value = StorableValue(CString(Value));
    const Place p = Locate(lines, section, key);
    if (p.Entry >= 0) {
        lines[p.Entry] = std::string(EntryOf(lines[p.Entry])->Key) + "=" + value;
    } else if (p.Header >= 0) {
        lines.insert(lines.begin() + p.Last + 1, key + "=" + value);
    } else {
        lines.push_back("[" + section + "]");
        lines.push_back(key + "=" + value);
    }
    const std::string out = JoinLines(lines, bytes->starts_with(kUtf8Bom));
    if (out == *bytes) return true;
    return Replace(path, out);
}

WriteBatch::WriteBatch(const std::string& FileName) : path_(CString(FileName)) {
    if (Batches().contains(path_)) return;
    PendingFile pending{ReadWholeFile(path_), {}};
    pending.Bytes = pending.OnDisk.value_or("");
    Batches().emplace(path_, std::move(pending));
    owner_ = true;
}

WriteBatch::~WriteBatch() {
    if (!owner_) return;
    const auto node = Batches().extract(path_);
    const PendingFile& pending = node.mapped();
    if (pending.OnDisk && pending.Bytes != *pending.OnDisk) Replace(path_, pending.Bytes);
}

std::size_t RewriteCount(const std::string& FileName) {
    const auto it = Rewrites().find(CString(FileName));
    return it == Rewrites().end() ? 0 : it->second;
}

} // namespace orvane::profile
