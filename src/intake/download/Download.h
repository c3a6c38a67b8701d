#pragma once
// A web page onto the disk: a fetch of an http or https address into a file, or the copy of the
// local file that a file: address names. libcurl's own defaults would follow any protocol, wait
// forever and write without end, so every limit is set here. What the server sends is the page,
// whatever the status of the answer: an error page is compared like any other.
#include <atomic>
#include <cstdint>
#include <string>

namespace orvane {

struct DownloadLimits {
    // A host that cannot be reached, or that is reached and then stays silent, gives up within
    // ConnectTimeoutMs + LowSpeedSeconds: 30 seconds with these values.
    long ConnectTimeoutMs = 10'000;
    // Slower than this over LowSpeedSeconds is a dead line; any real connection is far faster.
    long LowSpeedBytesPerSecond = 1024;
    long LowSpeedSeconds = 20;
    // A host that drips just above the low-speed limit must not hold a run for hours, even though
    // the user can cancel. Zero means no limit.
    long TotalTimeoutMs = 300'000;
    long MaxRedirects = 20;
    // Pages are compared line by line in memory; far beyond any real page.
    std::int64_t MaxBytes = 100LL * 1024 * 1024;
    // Checked while the transfer runs; true ends it as a failure. Null: never cancelled.
    const std::atomic<bool>* Cancel = nullptr;
};

enum class DownloadFailure {
    None,
    Refused,          // a scheme other than http, https or file, also reached by a redirect
    Connect,          // host not found, connection refused
    Timeout,          // connect timeout, low-speed limit or total time
    TooManyRedirects, // more than MaxRedirects, a redirect loop
    TooLarge,         // more than MaxBytes
    Incomplete,       // the server closed before the whole answer arrived
    LocalFile,        // a file: address that names no readable regular file
    Write,            // the target file could not be written
    Cancelled,        // the user pressed Esc or closed the window
    Other,            // TLS, protocol and the rest
};

struct DownloadResult {
    DownloadFailure Failure = DownloadFailure::None;
    long HttpStatus = 0;
    std::string Reason; // for diagnostics; the user is told one text whatever the cause
    long Code = 0;      // the transfer library's own number for the failure, where it has one
    bool Ok() const { return Failure == DownloadFailure::None; }
};

// Writes what Url names into TargetFile, replacing its content. On failure TargetFile is removed,
// so a partial page never passes for a whole one.
DownloadResult FetchToFile(const std::string& Url, const std::string& TargetFile,
                           const DownloadLimits& limits);

// A file: address (file:/p, file:///p, file://localhost/p, percent-encoded) copied to TargetFile.
DownloadResult CopyFileAddress(const std::string& Url, const std::string& TargetFile,
                               std::int64_t MaxBytes);

// A new empty file for a page's copy: "htm", hexadecimal digits, ".tmp" in the system temporary
// folder, the name that format detection knows for a downloaded page. Empty on failure (reported).
std::string MakeDownloadFileSpec();

// Words for the cause of a failure, as ERR_DETAIL.TXT gives it.
std::string FailureWords(DownloadFailure failure);

// The fetch runs on a thread of its own while the calling thread lets events run, so the window
// keeps painting and the progress sign moving. CancelDownload, from the window's Esc or close,
// ends the running fetch as a failed one.
void CancelDownload();
bool DownloadInProgress();

namespace modOrvane {
// True when the page is in TargetFile, whatever the status of the answer. On failure the real
// cause and the address go to ERR_DETAIL.TXT without a box: the user's message has one text for
// every cause.
bool DownloadWebPage(const std::string& Url, const std::string& TargetFile);
bool DownloadWebPage(const std::string& Url, const std::string& TargetFile,
                     const DownloadLimits& limits);
} // namespace modOrvane

} // namespace orvane
