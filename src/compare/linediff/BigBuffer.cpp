#include "BigBuffer.h"

#include <cstdint>
#include <new>
#include <sys/mman.h>

namespace linediff {
namespace {

constexpr std::size_t kHugePage = std::size_t(2) << 20;
// Below this, ordinary heap blocks: a huge page for a small array would waste memory.
constexpr std::size_t kBigThreshold = std::size_t(1) << 20;

std::size_t MappedLength(std::size_t bytes) {
    return (bytes + kHugePage - 1) & ~(kHugePage - 1);
}

} // namespace

void ThrowBadAlloc() {
    throw std::bad_alloc();
}

void* AllocateBig(std::size_t bytes) {
    if (bytes < kBigThreshold) return ::operator new(bytes);
    std::size_t length = MappedLength(bytes);
    if (length < bytes) ThrowBadAlloc();
    // Map one huge page more, then cut to a 2 MiB aligned start so every page can be huge.
    void* raw = ::mmap(nullptr, length + kHugePage, PROT_READ | PROT_WRITE,
                       MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (raw == MAP_FAILED) ThrowBadAlloc();
    auto start = reinterpret_cast<std::uintptr_t>(raw);
    std::uintptr_t aligned = (start + kHugePage - 1) & ~(kHugePage - 1);
    if (aligned > start) ::munmap(raw, aligned - start);
    std::size_t tail = start + length + kHugePage - (aligned + length);
    if (tail) ::munmap(reinterpret_cast<void*>(aligned + length), tail);
    ::madvise(reinterpret_cast<void*>(aligned), length, MADV_HUGEPAGE);
    return reinterpret_cast<void*>(aligned);
}

void FreeBig(void* p, std::size_t bytes) noexcept {
    if (!p) return;
    if (bytes < kBigThreshold)
        ::operator delete(p);
    else
        ::munmap(p, MappedLength(bytes));
}

} // namespace linediff
