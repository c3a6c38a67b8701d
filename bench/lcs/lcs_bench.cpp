// Times StringDiffsCharLevel on minified-page lines: a 1 MB pair with scattered edits (with and
// without large rewrites), and pairs of 2,000 characters. Each case runs in a child process so
// that its peak memory is its own. GNU diff on the texts split one character per line is the
// peer for the long pairs; its default run is not exact, --minimal is.
#include "compare/StringDiffs.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double Seconds(Clock::time_point since) {
    return std::chrono::duration<double>(Clock::now() - since).count();
}

// CPU time of this thread: on a busy machine the wall clock of a short call also counts the
// time slices of other programs.
double CpuSeconds() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

class PageMaker {
  public:
    explicit PageMaker(std::uint64_t seed) : rng_(seed) {
        for (int k = 0; k < 3000; ++k) {
            std::string w;
            for (std::size_t n = 2 + Below(9); n > 0; --n)
                w += static_cast<char>('a' + Below(26));
            vocabulary_.push_back(w);
        }
    }
    std::size_t Below(std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng_);
    }
    // A minified page: tags, attributes and text on one line.
    std::u32string Page(std::size_t size) {
        std::string s;
        static const char* kTags[] = {"div", "span", "a", "p", "li", "td", "strong", "em"};
        while (s.size() < size) {
            const std::string tag = kTags[Below(8)];
            s += "<" + tag + " class=\"" + Word() + "-" + std::to_string(Below(100)) + "\">";
            for (std::size_t n = 1 + Below(12); n > 0; --n)
                s += Word() + (Below(8) ? " " : ", ");
            s += "</" + tag + ">";
        }
        s.resize(size);
        return std::u32string(s.begin(), s.end());
    }
    // Replacements, insertions and deletions of a few characters at scattered places.
    std::u32string Edited(std::u32string s, std::size_t edits) {
        for (; edits > 0; --edits) {
            const std::size_t at = Below(s.size() - 16), n = 1 + Below(8);
            switch (Below(3)) {
            case 0:
                s.replace(at, n, Text(n));
                break;
            case 1:
                s.insert(at, Text(n));
                break;
            default:
                s.erase(at, n);
            }
        }
        return s;
    }
    std::u32string Rewritten(std::u32string s, std::size_t blocks, std::size_t size) {
        for (; blocks > 0; --blocks)
            s.replace(Below(s.size() - size), size, Page(size));
        return s;
    }

  private:
    const std::string& Word() { return vocabulary_[Below(vocabulary_.size())]; }
    std::u32string Text(std::size_t n) {
        std::u32string t;
        for (; n > 0; --n)
            t += static_cast<char32_t>('!' + Below(90));
        return t;
    }
    std::mt19937_64 rng_;
    std::vector<std::string> vocabulary_;
};

struct Figures {
    double seconds = 0;
    double peakMb = 0;
    long result = 0;
    double worstCpuSeconds = 0;
};

// Runs work in a child; it reports its seconds and result, the kernel its peak memory.
Figures InChild(const std::function<Figures()>& work) {
    int fds[2];
    if (pipe(fds) != 0) std::exit(1);
    std::fflush(stdout);
    const pid_t pid = fork();
    if (pid == 0) {
        close(fds[0]);
        const Figures f = work();
        if (write(fds[1], &f, sizeof f) != sizeof f) _exit(1);
        _exit(0);
    }
    close(fds[1]);
    Figures f;
    if (read(fds[0], &f, sizeof f) != sizeof f) f.seconds = -1;
    close(fds[0]);
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    f.peakMb = static_cast<double>(usage.ru_maxrss) / 1024.0;
    return f;
}

Figures RunCommand(const std::vector<std::string>& args) {
    std::fflush(stdout);
    const auto start = Clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        std::vector<char*> argv;
        for (const std::string& a : args)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        if (!freopen("/dev/null", "w", stdout)) _exit(127);
        execvp(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    return {Seconds(start), static_cast<double>(usage.ru_maxrss) / 1024.0,
            WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

void WriteOnePerLine(const std::string& path, const std::u32string& text) {
    std::ofstream out(path, std::ios::binary);
    std::string s;
    for (char32_t c : text)
        (s += static_cast<char>(c)) += '\n';
    out << s;
}

// The marked characters of both sides must spell one common subsequence.
bool MarksAgree(const std::u32string& a, const std::u32string& b, const orvane::lcs::Marks& marksA,
                const orvane::lcs::Marks& marksB) {
    std::u32string keptA, keptB;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (marksA[i]) keptA += a[i];
    for (std::size_t j = 0; j < b.size(); ++j)
        if (marksB[j]) keptB += b[j];
    return keptA == keptB;
}

// Marks of one pair: time of the call alone, peak memory of the whole child; the result is -1
// when the marks do not agree.
Figures TimeCharLevel(const std::function<std::pair<std::u32string, std::u32string>()>& make) {
    return InChild([&] {
        const auto [a, b] = make();
        orvane::lcs::Marks marksA, marksB;
        const auto start = Clock::now();
        const std::int32_t r = orvane::modDiff::StringDiffsCharLevel(a, b, false, marksA, marksB);
        const double seconds = Seconds(start);
        return Figures{seconds, 0, MarksAgree(a, b, marksA, marksB) ? r : -1};
    });
}

void LongPair(const char* name, std::size_t rewrites) {
    const auto make = [rewrites] {
        PageMaker maker(42);
        std::u32string a = maker.Page(1 << 20);
        std::u32string b = maker.Rewritten(maker.Edited(a, 500), rewrites, 20000);
        return std::pair{a, b};
    };
    const Figures ours = TimeCharLevel(make);
    const Figures input = InChild([&] {
        const auto pair = make();
        return Figures{0, 0, static_cast<long>(pair.first.size() + pair.second.size())};
    });
    std::printf("%-44s %7.3f s %7.1f MB (inputs alone %5.1f MB)  lcs of middle %ld\n", name,
                ours.seconds, ours.peakMb, input.peakMb, ours.result);
    char dir[] = "/tmp/lcs-bench-XXXXXX";
    if (!mkdtemp(dir)) return;
    const auto [a, b] = make();
    const std::string fa = std::string(dir) + "/a", fb = std::string(dir) + "/b";
    WriteOnePerLine(fa, a);
    WriteOnePerLine(fb, b);
    for (const char* flag : {"", "--minimal"}) {
        std::vector<std::string> args = {"diff", fa, fb};
        if (*flag) args.insert(args.begin() + 1, flag);
        const Figures peer = RunCommand(args);
        std::printf("  GNU diff %-10s one char per line     %7.3f s %7.1f MB  ours/peer time "
                    "%.2f\n",
                    flag, peer.seconds, peer.peakMb, ours.seconds / peer.seconds);
    }
    std::remove(fa.c_str());
    std::remove(fb.c_str());
    rmdir(dir);
}

void ShortPairs(const char* name, bool unrelated) {
    const Figures f = InChild([unrelated] {
        PageMaker maker(7);
        double total = 0, worst = 0, worstCpu = 0;
        constexpr int kRuns = 500;
        for (int k = 0; k < kRuns; ++k) {
            const std::u32string a = maker.Page(2000);
            const std::u32string b = unrelated ? maker.Page(2000) : maker.Edited(a, 1 + k % 10);
            orvane::lcs::Marks marksA, marksB;
            const auto start = Clock::now();
            const double cpu = CpuSeconds();
            orvane::modDiff::StringDiffsCharLevel(a, b, false, marksA, marksB);
            const double s = Seconds(start);
            worstCpu = std::max(worstCpu, CpuSeconds() - cpu);
            total += s;
            worst = std::max(worst, s);
        }
        return Figures{total / kRuns, 0, static_cast<long>(worst * 1e6), worstCpu};
    });
    std::printf("%-44s %7.3f ms mean, %.3f ms worst (%.3f ms of CPU), peak %.1f MB\n", name,
                f.seconds * 1e3, static_cast<double>(f.result) / 1e3, f.worstCpuSeconds * 1e3,
                f.peakMb);
}

} // namespace

int main(int argc, char** argv) {
    const bool all = argc > 1 && std::string(argv[1]) == "--all";
    ShortPairs("2,000 characters, 1-10 edits (500 pairs)", false);
    ShortPairs("2,000 characters, unrelated (500 pairs)", true);
    LongPair("1 MB, 500 scattered edits", 0);
    LongPair("1 MB, 500 edits and three 20 KB rewrites", 3);
    if (all) {
        const Figures f = TimeCharLevel([] {
            PageMaker maker(9);
            return std::pair{maker.Page(1 << 20), maker.Page(1 << 20)};
        });
        std::printf("%-44s %7.3f s %7.1f MB\n", "1 MB, unrelated", f.seconds, f.peakMb);
    }
    return 0;
}
