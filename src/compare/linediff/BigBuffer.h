#pragma once
// Big arrays of the differ come from the kernel in 2 MiB pages where it allows them: a file of a
// million lines makes the differ touch a few hundred megabytes once, and with 4 KiB pages the
// page faults alone took a third of the run.
#include <cstddef>
#include <vector>

namespace linediff {

void* AllocateBig(std::size_t bytes); // throws std::bad_alloc
void FreeBig(void* p, std::size_t bytes) noexcept;

template <class T> struct BigAllocator {
    using value_type = T;
    BigAllocator() = default;
    template <class U> BigAllocator(const BigAllocator<U>&) noexcept {}
    T* allocate(std::size_t n);
    void deallocate(T* p, std::size_t n) noexcept { FreeBig(p, n * sizeof(T)); }
    template <class U> bool operator==(const BigAllocator<U>&) const noexcept { return true; }
};

template <class T> using BigVector = std::vector<T, BigAllocator<T>>;

// A fixed array left uninitialized, for scratch space of which only a part may ever be used.
template <class T> class BigArray {
  public:
    explicit BigArray(std::size_t n) : data_(BigAllocator<T>().allocate(n)), size_(n) {}
    ~BigArray() { BigAllocator<T>().deallocate(data_, size_); }
    BigArray(const BigArray&) = delete;
    BigArray& operator=(const BigArray&) = delete;
    T* Data() { return data_; }

  private:
    T* data_;
    std::size_t size_;
};

void ThrowBadAlloc();

template <class T> T* BigAllocator<T>::allocate(std::size_t n) {
    if (n > static_cast<std::size_t>(-1) / sizeof(T)) ThrowBadAlloc();
    return static_cast<T*>(AllocateBig(n * sizeof(T)));
}

} // namespace linediff
