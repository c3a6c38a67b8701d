#pragma once
// Items made into class numbers and aligned by the line differ's search (near-minimal, with its
// own cost cap and fall-backs), whatever the items are: lines, atoms.
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace orvane::report {

class KeyTable {
  public:
    std::uint32_t Id(const std::u32string& key) {
        return ids_.try_emplace(key, static_cast<std::uint32_t>(ids_.size())).first->second;
    }
    std::uint32_t Count() const { return static_cast<std::uint32_t>(ids_.size()); }

  private:
    std::unordered_map<std::u32string, std::uint32_t> ids_;
};

struct Alignment {
    std::vector<std::uint8_t> changedA, changedB; // 1: not in the common subsequence
};

Alignment AlignSequences(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b,
                         std::uint32_t classCount);

} // namespace orvane::report
