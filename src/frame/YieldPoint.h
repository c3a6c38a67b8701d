#pragma once
// Lets pending events run from inside a long loop, at most every few milliseconds: once per row
// would cost more than the work itself on a million-row file, while this keeps the window alive.
#include "frame/Prompter.h"

#include <chrono>

namespace orvane {

class YieldPoint {
  public:
    void operator()() {
        if (++calls_ % kCheckEvery != 0) return;
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < kInterval) return;
        last_ = now;
        DoEvents();
    }

  private:
    static constexpr unsigned kCheckEvery = 256;
    static constexpr std::chrono::milliseconds kInterval{30};
    unsigned calls_ = 0;
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

} // namespace orvane
