#include "printing/CupsQueue.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>
#include <unistd.h>

namespace orvane::test {
namespace {

namespace fs = std::filesystem;
constexpr const char* kCupsd = "/usr/sbin/cupsd";
constexpr const char* kBackend = "/usr/lib/cups/backend/cups-pdf";
constexpr const char* kPpd = "/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd";

} // namespace

CupsQueue::CupsQueue() : name_("OrvaneTest" + std::to_string(::getpid())) {
    for (const char* part : {kCupsd, kBackend, kPpd})
        if (!fs::exists(part)) unavailable_ = std::string(part) + " is not installed";
    if (unavailable_.empty() && ::access("/etc/cups", W_OK) != 0)
        unavailable_ = "/etc/cups is not writable, and cups-pdf reads its output folder there";
    if (unavailable_.empty() && !Start() && unavailable_.empty())
        unavailable_ = "cupsd did not start";
}

CupsQueue::~CupsQueue() {
    if (cupsd_.state() != QProcess::NotRunning) {
        cupsd_.terminate();
        if (!cupsd_.waitForFinished(5000)) cupsd_.kill();
        cupsd_.waitForFinished(2000);
    }
    if (!pdfConf_.empty()) fs::remove(pdfConf_);
}

bool CupsQueue::Start() {
    const std::string t = dir_.Path();
    // Filters run as an unprivileged user and must reach the spool below this folder.
    fs::permissions(t, fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec |
                           fs::perms::others_read | fs::perms::others_exec);
    for (const char* sub : {"root", "spool/tmp", "cache", "state", "log", "out", "pdfspool"})
        fs::create_directories(t + sub);
    dir_.Write("root/cupsd.conf", "Listen " + Socket() +
                                      "\nLogLevel warn\nBrowsing Off\nWebInterface No\n"
                                      "DefaultAuthType None\n"
                                      "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
                                      "<Location /admin>\n  Order allow,deny\n  Allow all\n"
                                      "</Location>\n");
    dir_.Write("root/cups-files.conf",
               "ServerRoot " + t + "root\nRequestRoot " + t + "spool\nTempDir " + t +
                   "spool/tmp\nCacheDir " + t + "cache\nStateDir " + t +
                   "state\nServerBin /usr/lib/cups\nDataDir /usr/share/cups\nAccessLog " + t +
                   "log/access_log\nErrorLog " + t + "log/error_log\nPageLog " + t +
                   "log/page_log\nSystemGroup root\n");
    pdfConf_ = "/etc/cups/cups-pdf-" + name_ + ".conf";
    std::ofstream(pdfConf_) << "Out " << OutputFolder() << "\nAnonDirName " << OutputFolder()
                            << "\nSpool " << t << "pdfspool\nLog " << t << "log\nUserUMask 0000\n";
    cupsd_.start(kCupsd, {"-f", "-c", QString::fromStdString(t + "root/cupsd.conf"), "-s",
                          QString::fromStdString(t + "root/cups-files.conf")});
    if (!cupsd_.waitForStarted(5000)) return false;
    for (int i = 0; i < 100 && !fs::exists(Socket()); ++i) {
        if (cupsd_.state() == QProcess::NotRunning) {
            unavailable_ = "cupsd stopped: " + cupsd_.readAllStandardError().toStdString();
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    ::setenv("CUPS_SERVER", Socket().c_str(), 1);
    const QString name = QString::fromStdString(name_);
    return Admin({"-p", name, "-v", "cups-pdf:/" + name, "-P", kPpd, "-E"}) && Admin({"-d", name});
}

bool CupsQueue::Admin(const QStringList& arguments) {
    QProcess lpadmin;
    lpadmin.start("lpadmin", arguments);
    if (lpadmin.waitForFinished(20000) && lpadmin.exitCode() == 0) return true;
    unavailable_ = "lpadmin failed: " + lpadmin.readAllStandardError().toStdString();
    return false;
}

} // namespace orvane::test
