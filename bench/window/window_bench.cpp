// Drives the real main window offscreen through a comparison of generated pairs and reports the
// time from Compare to results on screen, the longest stretch without letting events run, and
// the peak memory, beside GNU diff's time on the same pair.
//   window_bench [LINES...]   (default: 100000 1000000)
#include "app/QtPrompter.h"
#include "compare/FileDiffEngine.h"
#include "frame/KWCommon.h"
#include "frame/ProgramFolder.h"
#include "results/frmFileDiffs.h"
#include "settings/ExtractionOptions.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QApplication>
#include <QComboBox>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

// Lets events run like the real prompter and notes the longest gap between two calls.
class TimingPrompter : public orvane::QtPrompter {
  public:
    void DoEvents() override {
        const auto now = Clock::now();
        longest = std::max(longest, now - last);
        last = now;
        QtPrompter::DoEvents();
    }
    void MsgBox(const std::string& text, orvane::MsgIcon, const std::string& title) override {
        std::fprintf(stderr, "box: %s: %s\n", title.c_str(), text.c_str());
    }
    Clock::duration longest{};
    Clock::time_point last = Clock::now();
};

std::string Line(std::mt19937& rng, long i) {
    static const char* tags[] = {"div", "p", "span", "li", "td", "a"};
    const char* t = tags[rng() % 6];
    return "  <" + std::string(t) + " class=\"c" + std::to_string(rng() % 50) + "\">item " +
           std::to_string(i) + " text " + std::to_string(rng()) + "</" + t + ">\n";
}

// A pair of `lines` lines with 1% of the lines changed, deleted or added.
void WritePair(long lines, const std::string& a, const std::string& b) {
    std::mt19937 rng(42);
    std::ofstream fa(a), fb(b);
    for (long i = 0; i < lines; ++i) {
        const std::string line = Line(rng, i);
        fa << line;
        const unsigned r = rng() % 300;
        if (r == 0)
            fb << Line(rng, -i); // changed
        else if (r == 1)
            continue; // deleted
        else if (r == 2)
            fb << line << Line(rng, -i); // added
        else
            fb << line;
    }
}

double Seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

double GnuDiffSeconds(const std::string& a, const std::string& b) {
    const auto start = Clock::now();
    const std::string cmd = "diff '" + a + "' '" + b + "' > /dev/null";
    if (std::system(cmd.c_str()) < 0) return -1;
    return Seconds(Clock::now() - start);
}

long PeakRssMegabytes() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    return u.ru_maxrss / 1024;
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    using namespace orvane;
    auto timing = std::make_shared<TimingPrompter>();
    SetPrompter(timing);
    gAppPath = AddTrailingBackslash(QApplication::applicationDirPath().toStdString());
    Session session;
    FileDiffEngine fileDiff;
    frmFileDiffs window(session, fileDiff);
    window.Form_Load("");
    session.ViewOptions.OutputFormat = OutputFormat::SideBySide;
    window.resize(1200, 800);

    std::vector<long> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.push_back(std::atol(argv[i]));
    if (sizes.empty()) sizes = {100000, 1000000};
    const std::string dir = "/tmp/orvane-window-bench-" + std::to_string(::getpid()) + "-";
    std::printf("%10s %10s %10s %8s %12s %10s\n", "lines", "ours s", "GNU s", "ratio", "stall ms",
                "peak MB");
    for (long lines : sizes) {
        const std::string a = dir + "a.html", b = dir + "b.html";
        WritePair(lines, a, b);
        const double gnu = GnuDiffSeconds(a, b);
        window.OriginalFileBox()->setEditText(QString::fromStdString(a));
        window.RevisedFileBox()->setEditText(QString::fromStdString(b));
        timing->longest = {};
        timing->last = Clock::now();
        const auto start = Clock::now();
        window.CompareFiles(true);
        QApplication::processEvents(); // the results painted
        const double ours = Seconds(Clock::now() - start);
        std::printf("%10ld %10.3f %10.3f %8.2f %12.1f %10ld   (%ld rows)\n", lines, ours, gnu,
                    ours / gnu, Seconds(timing->longest) * 1000, PeakRssMegabytes(),
                    window.OriginalGrid().Rows());
        std::remove(a.c_str());
        std::remove(b.c_str());
    }
    return 0;
}
