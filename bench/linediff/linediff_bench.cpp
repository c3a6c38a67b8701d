// Times build/bin/linediff against GNU diff on generated HTML-like pairs, both run the same way
// in the same run (best of 3, wall clock), and compares how many lines each marks as changed.
//   linediff_bench [--sizes 10000,100000,1000000] [--linediff PATH] [--minimal] [--verify]
//                  [--keep DIR]
// --minimal also counts `diff --minimal` (slow at 1M lines); --verify applies our output with
// GNU patch and checks that it rebuilds the Revised file; --keep leaves the last pair of each
// kind in DIR (a.html, b-scattered.html, b-rewritten.html). Exit 1 if we ever mark more lines
// than GNU diff.
#include "HtmlPairGenerator.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace {

using linediff_bench::HtmlPairGenerator;

struct Run {
    double seconds = 1e9;
    long changed = 0;
    long peakMB = 0;
    int status = -1;
};

// Runs `argv` with stdout to `outPath`; wall time, exit status and peak memory.
Run RunOnce(const std::vector<std::string>& argv, const std::string& outPath) {
    std::vector<char*> args;
    for (const std::string& a : argv)
        args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0644);
    auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    Run run;
    if (posix_spawnp(&pid, args[0], &actions, nullptr, args.data(), environ) != 0) return run;
    int status = 0;
    struct rusage usage {};
    wait4(pid, &status, 0, &usage);
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.peakMB = usage.ru_maxrss / 1024;
    posix_spawn_file_actions_destroy(&actions);
    return run;
}

long CountChanged(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    long n = 0;
    while (std::getline(in, line))
        if (line.size() >= 2 && (line[0] == '<' || line[0] == '>') && line[1] == ' ') ++n;
    return n;
}

Run BestOf3(const std::vector<std::string>& argv, const std::string& outPath) {
    Run best;
    for (int i = 0; i < 3; ++i) {
        Run r = RunOnce(argv, outPath);
        if (r.seconds < best.seconds) best = r;
    }
    best.changed = CountChanged(outPath);
    return best;
}

void Write(const std::string& path, const linediff_bench::Lines& lines) {
    std::ofstream(path, std::ios::binary) << linediff_bench::Join(lines);
}

// Writes a.html and the two revisions for one size. Run in a child process, so that the
// generator's memory never shows in the peak memory measured for the differs.
void Generate(const std::string& dir, std::size_t lines) {
    HtmlPairGenerator gen(lines);
    linediff_bench::Lines page = gen.Page(lines);
    Write(dir + "/a.html", page);
    Write(dir + "/b-scattered.html", gen.ScatteredEdits(page, 0.01));
    Write(dir + "/b-rewritten.html", gen.RewrittenBlocks(page, 3, 0.02));
}

bool SameFile(const std::string& p, const std::string& q) {
    std::ifstream a(p, std::ios::binary), b(q, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(a), {}) ==
           std::string(std::istreambuf_iterator<char>(b), {});
}

struct Settings {
    std::vector<std::size_t> sizes{10000, 100000, 1000000};
    std::string linediff = ORVANE_BIN_DIR "linediff";
    bool minimal = false, verify = false;
    std::string keep;
};

Settings Parse(int argc, char** argv) {
    Settings s;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg == "--minimal")
            s.minimal = true;
        else if (arg == "--verify")
            s.verify = true;
        else if (arg == "--linediff" && i + 1 < argc)
            s.linediff = argv[++i];
        else if (arg == "--keep" && i + 1 < argc)
            s.keep = argv[++i];
        else if (arg == "--sizes" && i + 1 < argc) {
            s.sizes.clear();
            std::stringstream list(argv[++i]);
            for (std::string item; std::getline(list, item, ',');)
                s.sizes.push_back(std::stoul(item));
        } else {
            std::fprintf(stderr, "usage: linediff_bench [--sizes N,N] [--linediff PATH] "
                                 "[--minimal] [--verify] [--keep DIR]\n");
            std::exit(2);
        }
    }
    return s;
}

// Returns false when ours marks more lines than GNU diff or the patch check fails.
bool Measure(const Settings& s, const std::string& name, const std::string& dir,
             const std::string& revised) {
    std::string a = dir + "/a.html", b = dir + "/" + revised, out = dir + "/out.txt";
    Run ours = BestOf3({s.linediff, a, b}, out);
    bool rebuilt = true;
    if (s.verify) {
        std::string rebuiltPath = dir + "/rebuilt.html";
        rebuilt =
            RunOnce({"patch", "-f", "-s", "-o", rebuiltPath, a, out}, "/dev/null").status == 0 &&
            SameFile(rebuiltPath, b);
    }
    Run gnu = BestOf3({"diff", a, b}, out);
    std::printf("%-24s %7.3f %7.3f %6.2f %9ld %9ld %6ld %6ld", name.c_str(), ours.seconds,
                gnu.seconds, ours.seconds / gnu.seconds, ours.changed, gnu.changed, ours.peakMB,
                gnu.peakMB);
    if (s.minimal)
        std::printf(" %9ld",
                    RunOnce({"diff", "--minimal", a, b}, out).status >= 0 ? CountChanged(out) : -1);
    if (s.verify) std::printf("  %s", rebuilt ? "patch ok" : "PATCH FAILED");
    std::printf("\n");
    std::fflush(stdout);
    return rebuilt && ours.changed <= gnu.changed;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 4 && std::string(argv[1]) == "--generate")
        return Generate(argv[2], std::stoul(argv[3])), 0;
    Settings s = Parse(argc, argv);
    char pattern[] = "/tmp/linediff_bench_XXXXXX";
    const char* made = s.keep.empty() ? mkdtemp(pattern) : s.keep.c_str();
    if (!made) return std::perror("mkdtemp"), 2;
    std::string dir = made;
    std::printf("%-24s %7s %7s %6s %9s %9s %6s %6s%s\n", "pair", "ours s", "diff s", "ratio",
                "ours chg", "diff chg", "our MB", "dif MB", s.minimal ? "   minimal" : "");
    bool ok = true;
    for (std::size_t lines : s.sizes) {
        if (RunOnce({"/proc/self/exe", "--generate", dir, std::to_string(lines)}, "/dev/null")
                .status != 0)
            return std::fprintf(stderr, "cannot generate the files\n"), 2;
        ok &= Measure(s, std::to_string(lines) + " scattered 1%", dir, "b-scattered.html");
        ok &= Measure(s, std::to_string(lines) + " 3 blocks rewritten", dir, "b-rewritten.html");
    }
    if (s.keep.empty()) {
        for (const char* f :
             {"a.html", "b-scattered.html", "b-rewritten.html", "out.txt", "rebuilt.html"})
            std::remove((dir + "/" + f).c_str());
        rmdir(dir.c_str());
    }
    return ok ? 0 : 1;
}
