#include "settings/AtomicWrite.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane {
namespace {

// Writing through a link keeps the user's link in place instead of replacing it by a file.
std::string ResolveTarget(const std::string& path) {
    struct stat st {};
    if (lstat(path.c_str(), &st) != 0 || !S_ISLNK(st.st_mode)) return path;
    char resolved[PATH_MAX];
    if (realpath(path.c_str(), resolved) == nullptr) return path; // dangling: replace the link
    return resolved;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string(".") : path.substr(0, slash + 1);
}

std::string TempPrefix(const std::string& target, std::string& folder) {
    const auto slash = target.rfind('/');
    folder = slash == std::string::npos ? "" : target.substr(0, slash + 1);
    const std::string base = slash == std::string::npos ? target : target.substr(slash + 1);
    return "." + base + ".";
}

// A hidden name beside the target: the rename stays on one file system. O_EXCL with mode 0666
// lets the kernel apply the umask, which mkstemp's fixed 0600 would not.
int CreateTempBeside(const std::string& target, std::string& tempPath) {
    static std::atomic<unsigned> counter{0};
    std::string folder;
    const std::string prefix = TempPrefix(target, folder);
    for (int attempt = 0; attempt < 100; ++attempt) {
        tempPath =
            folder + prefix + std::to_string(getpid()) + "." + std::to_string(counter++) + ".tmp";
        const int fd = open(tempPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (fd >= 0 || errno != EEXIST) return fd;
    }
    return -1;
}

bool WriteAll(int fd, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) return false;
        done += static_cast<std::size_t>(n);
    }
    return true;
}

bool KeepMode(int fd, const std::string& target) {
    struct stat st {};
    if (stat(target.c_str(), &st) != 0) return errno == ENOENT;
    return fchmod(fd, st.st_mode & 07777) == 0;
}

// Makes the rename itself durable; a failure here does not undo a completed replacement.
void SyncFolder(const std::string& target) {
    const int dir = open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0) return;
    fsync(dir);
    close(dir);
}

// The writer's process id from a name "<prefix><pid>.<n>.tmp"; 0 for any other name.
pid_t WriterOf(const std::string& name, const std::string& prefix) {
    if (!name.starts_with(prefix) || !name.ends_with(".tmp")) return 0;
    const std::string middle = name.substr(prefix.size(), name.size() - prefix.size() - 4);
    const auto dot = middle.find('.');
    if (dot == 0 || dot == std::string::npos || dot + 1 == middle.size()) return 0;
    if (middle.find_first_not_of("0123456789.") != std::string::npos) return 0;
    if (middle.find('.', dot + 1) != std::string::npos) return 0;
    return static_cast<pid_t>(std::strtol(middle.c_str(), nullptr, 10));
}

bool Running(pid_t pid) {
    return kill(pid, 0) == 0 || errno == EPERM;
}

} // namespace

int RemoveStaleTemporaries(const std::string& path) {
    std::string folder;
    const std::string prefix = TempPrefix(ResolveTarget(path), folder);
    DIR* dir = opendir(folder.empty() ? "." : folder.c_str());
    if (!dir) return 0;
    int removed = 0;
    while (const dirent* entry = readdir(dir)) {
        const pid_t writer = WriterOf(entry->d_name, prefix);
        // Our own process may be mid-save on another thread of work; a living writer too.
        if (writer <= 0 || writer == getpid() || Running(writer)) continue;
        if (unlink((folder + entry->d_name).c_str()) == 0) ++removed;
    }
    closedir(dir);
    return removed;
}

bool WriteFileAtomically(const std::string& path, const std::string& bytes) {
    const std::string target = ResolveTarget(path);
    std::string temp;
    const int fd = CreateTempBeside(target, temp);
    if (fd < 0) return false;
    bool ok = WriteAll(fd, bytes) && KeepMode(fd, target) && fsync(fd) == 0;
    ok = close(fd) == 0 && ok;
    if (ok) ok = rename(temp.c_str(), target.c_str()) == 0;
    if (!ok) {
        unlink(temp.c_str());
        return false;
    }
    SyncFolder(target);
    return true;
}

} // namespace orvane
