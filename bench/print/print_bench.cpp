// Prints both grids of a compared pair to PDF through the real window and Print Options, and
// reports the time and peak memory beside cups-filters' texttopdf turning the same two files
// into PDF in the same run.
//   print_bench [LINES] [OUTPUT-FOLDER]   (default: 100000, a temporary folder)
#include "app/QtPrompter.h"
#include "compare/FileDiffEngine.h"
#include "frame/EngineLibraries.h"
#include "frame/ProgramFolder.h"
#include "results/GridPrinting.h"
#include "results/frmFileDiffs.h"
#include "settings/ExtractionOptions.h"
#include "settings/Session.h"
#include "settings/ViewOptions.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

class QuietPrompter : public orvane::QtPrompter {
  public:
    void MsgBox(const std::string& text, orvane::MsgIcon, const std::string& title) override {
        std::fprintf(stderr, "box: %s: %s\n", title.c_str(), text.c_str());
    }
};

// A pair of `lines` lines of markup, one line in a hundred changed.
void WritePair(long lines, const std::string& a, const std::string& b) {
    std::mt19937 rng(7);
    std::ofstream fa(a), fb(b);
    for (long i = 0; i < lines; ++i) {
        const std::string line = "  <p class=\"c" + std::to_string(rng() % 50) + "\">item " +
                                 std::to_string(i) + " text " + std::to_string(rng()) + "</p>\n";
        fa << line;
        fb << (rng() % 100 == 0 ? "  <p>changed " + std::to_string(i) + "</p>\n" : line);
    }
}

long PeakKb(int who) {
    rusage u{};
    ::getrusage(who, &u);
    return u.ru_maxrss;
}

double Seconds(Clock::duration d) {
    return std::chrono::duration<double>(d).count();
}

// texttopdf of one file, as cupsfilter runs it; the child's time and peak memory.
void Peer(const std::vector<std::string>& files, const std::string& outFolder) {
    const auto start = Clock::now();
    std::fflush(stdout); // the children must not print our buffered lines again
    for (std::size_t i = 0; i < files.size(); ++i) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            const std::string out = outFolder + "peer" + std::to_string(i) + ".pdf";
            std::freopen(out.c_str(), "w", stdout);
            std::freopen("/dev/null", "w", stderr);
            ::execlp("cupsfilter", "cupsfilter", "-m", "application/pdf", files[i].c_str(),
                     static_cast<char*>(nullptr));
            ::_exit(127);
        }
        int status = 0;
        ::waitpid(pid, &status, 0);
    }
    std::printf("peer  cupsfilter texttopdf, both files: %.2f s, peak %ld MB (largest child)\n",
                Seconds(Clock::now() - start), PeakKb(RUSAGE_CHILDREN) / 1024);
}

} // namespace

int main(int argc, char** argv) {
    using namespace orvane;
    QApplication app(argc, argv);
    const long lines = argc > 1 ? std::atol(argv[1]) : 100000;
    std::string folder = argc > 2 ? std::string(argv[2]) + "/" : "";
    if (folder.empty()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "print-bench-XXXXXX");
        folder = std::string(::mkdtemp(pattern.data())) + "/";
    }
    const std::string a = folder + "a.html", b = folder + "b.html", pdf = folder + "grids.pdf";
    std::filesystem::create_directories(folder);
    WritePair(lines, a, b);

    SetPrompter(std::make_shared<QuietPrompter>());
    // The engines load from the program's folder; settings go to the bench's own folder.
    const std::string bin = QCoreApplication::applicationDirPath().toStdString() + "/";
    gAppPath = bin;
    Session session;
    session.ViewOptions.OutputFormat = OutputFormat::SideBySide;
    session.ViewOptions.ComparisonMode = ComparisonMode::Code;
    FileDiffEngine fileDiff;
    for (Engine e : {Engine::KWCommon, Engine::DetFile, Engine::Detagger, Engine::DocTxt})
        LoadEngine(e, bin);
    gAppPath = folder;
    {
        frmFileDiffs window(session, fileDiff);
        window.Form_Load("");
        window.OriginalFileBox()->setEditText(QString::fromStdString(a));
        window.RevisedFileBox()->setEditText(QString::fromStdString(b));
        window.CompareFiles(true);
        const long beforeKb = PeakKb(RUSAGE_SELF);
        Clock::duration printing{};
        window.ShowModal = [&](QDialog& d) {
            const auto start = Clock::now();
            d.findChild<QAbstractButton*>("cmdPrint")->click();
            printing = Clock::now() - start;
        };
        PrintGrids(window, pdf);
        std::printf("pair  %ld lines each, %ld rows shown a side\n", lines,
                    window.OriginalGrid().Rows() - 1);
        std::printf("ours  Print to PDF, both grids: %.2f s, peak %ld MB (%ld MB before printing)"
                    "\n",
                    Seconds(printing), PeakKb(RUSAGE_SELF) / 1024, beforeKb / 1024);
    }
    Peer({a, b}, folder);
    std::printf("files %s\n", folder.c_str());
    return 0;
}
