// Drives the real main window offscreen: a click on the row of a long one-line pair (a minified
// page) until both detail boxes have painted, with the time and the memory beyond what was in use
// before the click. Beside it, the LCS of the same two lines alone, timed in the same run, which
// is the least any display of the marks must cost.
//   detail_bench [MEGABYTES]   (default: 5)
#include "app/QtPrompter.h"
#include "compare/FileDiffEngine.h"
#include "compare/StringDiffs.h"
#include "frame/EngineLibraries.h"
#include "frame/KWCommon.h"
#include "frame/ProgramFolder.h"
#include "results/FlexGridView.h"
#include "results/LineDetailView.h"
#include "results/frmFileDiffs.h"
#include "settings/ExtractionOptions.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTest>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <random>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

class QuietPrompter : public orvane::QtPrompter {
  public:
    void MsgBox(const std::string& text, orvane::MsgIcon, const std::string& title) override {
        std::fprintf(stderr, "box: %s: %s\n", title.c_str(), text.substr(0, 120).c_str());
    }
};

// Figures of /proc/self/status in megabytes; the peak can be reset, so each step has its own.
long StatusMegabytes(const char* key) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == key) {
            long kb = 0;
            status >> kb;
            return kb / 1024;
        }
    return -1;
}

void ResetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

// Markup of about `bytes` bytes in one line, and the same with a change at each fraction `at`.
void MakePair(std::size_t bytes, const std::vector<double>& changes, std::string& a,
              std::string& b) {
    std::mt19937 rng(7);
    static const char* tags[] = {"div", "span", "td", "a", "li"};
    while (a.size() < bytes) {
        const char* t = tags[rng() % 5];
        a += "<" + std::string(t) + " class=\"c" + std::to_string(rng() % 90) + "\">" +
             std::to_string(rng()) + "</" + t + ">";
    }
    b = a;
    for (double at : changes)
        b.replace(static_cast<std::size_t>(static_cast<double>(b.size()) * at), 4, "XYZW");
}

// Counts paints of a detail box after the click.
class PaintCounter : public QObject {
  public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) ++paints;
        return false;
    }
};

double Seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

} // namespace

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QApplication app(argc, argv);
    using namespace orvane;
    SetPrompter(std::make_shared<QuietPrompter>());
    const std::string bin = AddTrailingBackslash(QApplication::applicationDirPath().toStdString());
    gAppPath = bin;
    FileDiffEngine fileDiff;
    for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt})
        LoadEngine(e, bin);
    const std::string dir =
        QDir::tempPath().toStdString() + "/orvane-detail-bench-" + std::to_string(::getpid()) + "/";
    QDir().mkpath(QString::fromStdString(dir));
    gAppPath = dir;
    Session session;

    const double megabytes = argc > 1 ? std::atof(argv[1]) : 5.0;
    const struct {
        const char* name;
        std::vector<double> changes;
    } kinds[] = {{"one change near the end", {0.999}},
                 {"changes at start, middle and end", {0.001, 0.5, 0.999}}};
    for (const auto& kind : kinds) {
        std::string a, b;
        MakePair(static_cast<std::size_t>(megabytes * 1024 * 1024), kind.changes, a, b);

        // The peer: the LCS of the two lines alone.
        double lcsSeconds = 0;
        long lcsMegabytes = 0;
        {
            const std::u32string ua(a.begin(), a.end()), ub(b.begin(), b.end());
            modDiff::Marks ma, mb;
            const long before = StatusMegabytes("VmRSS:");
            ResetPeak();
            const auto start = Clock::now();
            modDiff::StringDiffsCharLevel(ua, ub, false, ma, mb);
            lcsSeconds = Seconds(Clock::now() - start);
            lcsMegabytes = StatusMegabytes("VmHWM:") - before;
        }

        const std::string fa = dir + "a.html", fb = dir + "b.html";
        std::ofstream(fa) << "same\n" << a << "\nsame\n";
        std::ofstream(fb) << "same\n" << b << "\nsame\n";
        a.clear();
        a.shrink_to_fit();
        b.clear();
        b.shrink_to_fit();

        frmFileDiffs window(session, fileDiff);
        window.Form_Load("");
        session.ViewOptions.OutputFormat = OutputFormat::SideBySide;
        window.resize(1200, 800);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) return 1;
        window.OriginalFileBox()->setEditText(QString::fromStdString(fa));
        window.RevisedFileBox()->setEditText(QString::fromStdString(fb));
        window.CompareFiles(true);
        QApplication::processEvents();

        FlexGridView* grid = window.GridView(Side::Original);
        const auto click = [&](int row) {
            const QRect cell = grid->visualRect(grid->model()->index(row - 1, 0));
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
        };
        PaintCounter counters[2];
        for (int i = 0; i < 2; ++i)
            window.DetailBox(i)->viewport()->installEventFilter(&counters[i]);

        std::printf("\n%.1f MB line pair, %s; LCS alone: %.3f s, %ld MB\n", megabytes, kind.name,
                    lcsSeconds, lcsMegabytes);
        std::printf("%-10s %12s %10s %12s %14s %8s\n", "level", "click->paint", "vs LCS",
                    "memory MB", "beyond LCS MB", "visible");
        for (ComparisonLevel level :
             {ComparisonLevel::Character, ComparisonLevel::Line, ComparisonLevel::Word}) {
            session.ViewOptions.ComparisonLevel = level;
            click(1);
            QApplication::processEvents();
            counters[0].paints = counters[1].paints = 0;
            const long before = StatusMegabytes("VmRSS:");
            ResetPeak();
            const auto start = Clock::now();
            click(2);
            // A line the word level refuses (over 1001 words) leaves the boxes as they were.
            const auto deadline = Clock::now() + std::chrono::seconds(20);
            while ((counters[0].paints == 0 || counters[1].paints == 0) && Clock::now() < deadline)
                QApplication::processEvents(QEventLoop::AllEvents, 50);
            const double seconds = Seconds(Clock::now() - start);
            if (counters[0].paints == 0) {
                std::printf("%-10s   refused: the line has over 1001 words\n", "Word");
                continue;
            }
            const long used = StatusMegabytes("VmHWM:") - before;
            const auto span = window.DetailBox(1)->VisibleSpan();
            std::printf("%-10s %10.3f s %+9.3f s %12ld %14ld %8lld\n",
                        level == ComparisonLevel::Character ? "Character"
                        : level == ComparisonLevel::Line    ? "Line"
                                                            : "Word",
                        seconds, seconds - lcsSeconds, used, used - lcsMegabytes,
                        static_cast<long long>(span.second - span.first));
        }
        std::remove(fa.c_str());
        std::remove(fb.c_str());
    }
    QDir(QString::fromStdString(dir)).removeRecursively();
    return 0;
}
