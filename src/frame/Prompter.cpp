#include "frame/Prompter.h"

namespace orvane {
namespace {

class SilentPrompter : public Prompter {
  public:
    void MsgBox(const std::string&, MsgIcon, const std::string&) override {}
    bool InputBox(const std::string&, const std::string&, std::string&) override { return false; }
    bool OpenFileDialog(const std::string&, const std::string&, std::string&) override {
        return false;
    }
};

std::shared_ptr<Prompter>& installed() {
    static std::shared_ptr<Prompter> p = std::make_shared<SilentPrompter>();
    return p;
}

} // namespace

Prompter& prompter() {
    return *installed();
}

std::shared_ptr<Prompter> SetPrompter(std::shared_ptr<Prompter> p) {
    auto old = installed();
    installed() = p ? std::move(p) : std::make_shared<SilentPrompter>();
    return old;
}

} // namespace orvane
