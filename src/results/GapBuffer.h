#pragma once
// A sequence with cheap insertion and removal near the last edit: rows are inserted in ascending
// order while a file is loaded and while hunks are applied, so moving the gap costs O(n) in all
// instead of O(n) per row.
#include <cstddef>
#include <utility>
#include <vector>

namespace orvane {

template <typename T> class GapBuffer {
  public:
    std::size_t size() const { return buf_.size() - gapLen(); }

    T& operator[](std::size_t i) { return buf_[i < gapBegin_ ? i : i + gapLen()]; }
    const T& operator[](std::size_t i) const { return buf_[i < gapBegin_ ? i : i + gapLen()]; }

    void insert(std::size_t at, T value) {
        if (gapLen() == 0) grow();
        moveGapTo(at);
        buf_[gapBegin_++] = std::move(value);
    }

    void erase(std::size_t at) {
        moveGapTo(at);
        buf_[gapEnd_++] = T{};
    }

    void clear() {
        buf_.clear();
        gapBegin_ = gapEnd_ = 0;
    }

  private:
    std::size_t gapLen() const { return gapEnd_ - gapBegin_; }

    void moveGapTo(std::size_t at) {
        while (gapBegin_ > at)
            buf_[--gapEnd_] = std::move(buf_[--gapBegin_]);
        while (gapBegin_ < at)
            buf_[gapBegin_++] = std::move(buf_[gapEnd_++]);
    }

    void grow() {
        const std::size_t oldSize = buf_.size();
        const std::size_t extra = oldSize < 16 ? 16 : oldSize;
        std::vector<T> bigger(oldSize + extra);
        for (std::size_t i = 0; i < gapBegin_; ++i)
            bigger[i] = std::move(buf_[i]);
        for (std::size_t i = gapEnd_; i < oldSize; ++i)
            bigger[i + extra] = std::move(buf_[i]);
        buf_ = std::move(bigger);
        gapEnd_ += extra;
    }

    std::vector<T> buf_;
    std::size_t gapBegin_ = 0;
    std::size_t gapEnd_ = 0;
};

} // namespace orvane
