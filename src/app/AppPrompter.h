#pragma once
#include "app/QtPrompter.h"

namespace orvane {

// The program's prompter: help opens in the program's own help window, so it works on a
// machine without a browser set up.
class AppPrompter : public QtPrompter {
  public:
    void ShowHelp(int context) override;
};

} // namespace orvane
