#pragma once
// The differ's output: lines kept end to end in one buffer, each followed by LF, so that there
// is no allocation per line and the whole can be written at once.
#include "BigBuffer.h"

#include <cstddef>
#include <string_view>

namespace linediff {

class OutputLines {
  public:
    void Clear() {
        text_.clear();
        starts_.assign(1, 0);
    }
    void Add(std::string_view line) { Add({}, line); }
    void Add(std::string_view prefix, std::string_view line) {
        text_.insert(text_.end(), prefix.begin(), prefix.end());
        text_.insert(text_.end(), line.begin(), line.end());
        text_.push_back('\n');
        starts_.push_back(text_.size());
    }
    std::size_t Count() const { return starts_.size() - 1; }
    // Line i without its LF; it may hold any byte, NUL included.
    std::string_view Line(std::size_t i) const {
        return {text_.data() + starts_[i], starts_[i + 1] - starts_[i] - 1};
    }
    void Reserve(std::size_t bytes, std::size_t lines) {
        text_.reserve(bytes);
        starts_.reserve(lines + 1);
    }
    // All lines, each followed by LF.
    std::string_view Text() const { return {text_.data(), text_.size()}; }

  private:
    BigVector<char> text_;
    BigVector<std::size_t> starts_{0};
};

} // namespace linediff
