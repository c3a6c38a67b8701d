#include "app/StartOptions.h"

namespace orvane {
namespace {

constexpr std::size_t kOpenFiles = 2; // Original and Revised

StartDecision Print(std::string text, int status) {
    StartDecision d;
    d.ExitNow = true;
    d.Status = status;
    (status == 0 ? d.Out : d.Err) = std::move(text);
    return d;
}

// The desktop entry's option: two files at most, so that a file manager's third selected page
// can never become the report file of an unattended run and be written over.
StartDecision Open(const std::vector<std::string>& files) {
    StartDecision d;
    for (const std::string& f : files) {
        // The window's command line quotes each token and has no escape: a quote inside a name
        // would split it into more tokens, a report file among them.
        if (f.find('"') != std::string::npos)
            d.Err += "orvane: cannot open a name that holds a double quote: " + f + "\n";
        else if (d.Arguments.size() < kOpenFiles)
            d.Arguments.push_back(f);
        else
            d.Err += "orvane: --open compares two files; ignoring \"" + f + "\"\n";
    }
    return d;
}

} // namespace

std::string UsageText() {
    return "Usage: orvane [ORIGINAL [REVISED [REPORT]]]\n"
           "  or:  orvane --open [ORIGINAL [REVISED]]\n"
           "Compare two HTML documents, each a file or a web address, and show what changed.\n"
           "\n"
           "Each of ORIGINAL, REVISED and REPORT is one argument (quote it in the shell).\n"
           "With ORIGINAL and REVISED the window opens and compares them. With REPORT as well\n"
           "the program runs unattended: it writes a report of the differences to REPORT and\n"
           "ends without showing a window.\n"
           "\n"
           "      --open FILE...  fill the Original and the Revised box from the first two\n"
           "                      files and compare them in the window; never writes a file.\n"
           "                      Further files are ignored with a note on standard error.\n"
           "  -h, --help          display this help and exit\n"
           "      --version       output version information and exit\n"
           "\n"
           "Settings are kept in orvane.ini beside the program when its folder is writable,\n"
           "otherwise in $XDG_CONFIG_HOME/orvane/ (by default ~/.config/orvane/).\n"
           "Press F1 in the window for the full help.\n";
}

std::string VersionText() {
    return "orvane (Orvane) " ORVANE_VERSION "\n"
           "This is free software: you are free to change and redistribute it.\n"
           "There is NO WARRANTY, to the extent permitted by law.\n";
}

StartDecision DecideStart(const std::vector<std::string>& arguments) {
    if (arguments.empty()) return {};
    const std::string& first = arguments.front();
    if (first == "--help" || first == "-h") return Print(UsageText(), 0);
    if (first == "--version") return Print(VersionText(), 0);
    if (first == "--open")
        return Open(std::vector<std::string>(arguments.begin() + 1, arguments.end()));
    if (first.starts_with("--") && first.size() > 2 && first.find('/') == std::string::npos)
        return Print("orvane: unrecognized option '" + first +
                         "'\nTry 'orvane --help' for more information.\n",
                     2);
    StartDecision d;
    d.Arguments = arguments;
    return d;
}

} // namespace orvane
