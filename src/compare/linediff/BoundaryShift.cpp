#include "BoundaryShift.h"

#include <cstddef>

namespace linediff {
namespace {

// A run of changed lines [start, end), possibly empty, between two unchanged lines. A group of
// one file and a group of the other correspond when as many unchanged lines precede each.
struct Group {
    std::size_t start = 0, end = 0;
    bool Empty() const { return start == end; }
};

Group FirstGroup(const BigVector<std::uint8_t>& flags) {
    Group g;
    while (g.end < flags.size() && flags[g.end])
        ++g.end;
    return g;
}

bool NextGroup(const BigVector<std::uint8_t>& flags, Group& g) {
    if (g.end == flags.size()) return false;
    g.start = g.end = g.end + 1;
    while (g.end < flags.size() && flags[g.end])
        ++g.end;
    return true;
}

void PreviousGroup(const BigVector<std::uint8_t>& flags, Group& g) {
    g.end = g.start = g.start - 1;
    while (g.start > 0 && flags[g.start - 1])
        --g.start;
}

class Shifter {
  public:
    Shifter(const BigVector<std::uint32_t>& ids, BigVector<std::uint8_t>& changed,
            const BigVector<std::uint8_t>& other)
        : ids_(ids), changed_(changed), other_(other) {}

    void Run() {
        Group g = FirstGroup(changed_), go = FirstGroup(other_);
        do {
            if (!g.Empty()) Place(g, go);
        } while (NextGroup(changed_, g) && NextGroup(other_, go));
    }

  private:
    void Place(Group& g, Group& go) {
        constexpr std::size_t kNone = static_cast<std::size_t>(-1);
        std::size_t size, alignedEnd;
        do {
            size = g.end - g.start;
            alignedEnd = kNone;
            while (SlideUp(g))
                PreviousGroup(other_, go);
            if (!go.Empty()) alignedEnd = g.end;
            while (SlideDown(g)) {
                NextGroup(other_, go);
                if (!go.Empty()) alignedEnd = g.end;
            }
        } while (size != g.end - g.start); // merged with a neighbour: place the whole again
        if (alignedEnd == kNone) return;
        while (g.end > alignedEnd)
            SlideUp(g), PreviousGroup(other_, go);
    }

    // The line above the run equals its last line: the run moves up one, merging on contact.
    bool SlideUp(Group& g) {
        if (g.start == 0 || ids_[g.start - 1] != ids_[g.end - 1]) return false;
        changed_[--g.start] = 1;
        changed_[--g.end] = 0;
        while (g.start > 0 && changed_[g.start - 1])
            --g.start;
        return true;
    }

    bool SlideDown(Group& g) {
        if (g.end == changed_.size() || ids_[g.start] != ids_[g.end]) return false;
        changed_[g.start++] = 0;
        changed_[g.end++] = 1;
        while (g.end < changed_.size() && changed_[g.end])
            ++g.end;
        return true;
    }

    const BigVector<std::uint32_t>& ids_;
    BigVector<std::uint8_t>& changed_;
    const BigVector<std::uint8_t>& other_;
};

} // namespace

void ShiftBoundaries(const BigVector<std::uint32_t>& ids, BigVector<std::uint8_t>& changed,
                     const BigVector<std::uint8_t>& otherChanged) {
    Shifter(ids, changed, otherChanged).Run();
}

} // namespace linediff
