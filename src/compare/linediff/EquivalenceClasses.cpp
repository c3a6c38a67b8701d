#include "EquivalenceClasses.h"

#include "LineHash.h"

#include <bit>
#include <stdexcept>
#include <vector>

namespace linediff {
namespace {

// Lines are looked up this far ahead of use so that the table's cache miss overlaps other work.
constexpr std::size_t kPrefetchDistance = 16;

// The first line of a class; 16 bytes, since there may be millions.
struct Representative {
    static constexpr std::uint64_t kIncomplete = std::uint64_t(1) << 63;
    const char* data;
    std::uint64_t lengthAndEnd; // length, and kIncomplete for a last line without LF

    std::string_view Line() const { return {data, std::size_t(lengthAndEnd & ~kIncomplete)}; }
    bool Incomplete() const { return (lengthAndEnd & kIncomplete) != 0; }
};

// Open addressing; a slot holds the upper half of the hash beside class + 1, 0 when empty.
class ClassTable {
  public:
    ClassTable(std::size_t lines, const Options& options) : options_(options) {
        // Load stays under two thirds, so probe runs stay short.
        std::size_t capacity = std::bit_ceil(lines + lines / 2 + 16);
        slots_.assign(capacity, 0);
        mask_ = capacity - 1;
        reps_.reserve(lines / 2 + 16);
    }

    void Prefetch(std::uint64_t hash) const { __builtin_prefetch(&slots_[hash & mask_]); }

    std::uint32_t ClassOf(std::string_view line, bool incomplete, std::uint64_t hash) {
        std::uint64_t tag = hash >> 32;
        for (std::size_t i = hash & mask_;; i = (i + 1) & mask_) {
            std::uint64_t slot = slots_[i];
            if (slot == 0) return Insert(i, tag, line, incomplete);
            if ((slot >> 32) != tag) continue;
            std::uint32_t cls = static_cast<std::uint32_t>(slot) - 1;
            if (Same(reps_[cls], line, incomplete)) return cls;
        }
    }

    std::uint32_t Count() const { return static_cast<std::uint32_t>(reps_.size()); }

  private:
    std::uint32_t Insert(std::size_t i, std::uint64_t tag, std::string_view line, bool incomplete) {
        if (reps_.size() >= 0xFFFFFFFEu) throw std::length_error("too many distinct lines");
        auto cls = static_cast<std::uint32_t>(reps_.size());
        reps_.push_back(
            {line.data(), line.size() | (incomplete ? Representative::kIncomplete : 0)});
        slots_[i] = (tag << 32) | (cls + 1u);
        return cls;
    }

    bool Same(const Representative& rep, std::string_view line, bool incomplete) const {
        if (EndMatters(options_) && rep.Incomplete() != incomplete) return false;
        return LinesEqual(rep.Line(), line, options_);
    }

    Options options_;
    BigVector<std::uint64_t> slots_;
    std::size_t mask_ = 0;
    BigVector<Representative> reps_;
};

BigVector<std::uint32_t> Classify(const LineTable& lines, ClassTable& table) {
    std::size_t n = lines.Count();
    BigVector<std::uint32_t> ids(n);
    for (std::size_t i = 0; i < n; ++i) {
        if (i + kPrefetchDistance < n) table.Prefetch(lines.hashes[i + kPrefetchDistance]);
        ids[i] = table.ClassOf(lines.Line(i), lines.Incomplete(i), lines.hashes[i]);
    }
    return ids;
}

} // namespace

ClassIds AssignClasses(const LineTable& a, const LineTable& b, const Options& options) {
    ClassTable table(a.Count() + b.Count(), options);
    ClassIds ids;
    ids.a = Classify(a, table);
    ids.b = Classify(b, table);
    ids.count = table.Count();
    return ids;
}

} // namespace linediff
