#pragma once
// A web page onto the disk: a blocking fetch of an http or https address into a file, or the copy
// of the local file that a file: address names. libcurl's own defaults would follow any protocol,
// wait forever and write without end, so every limit is set here.
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
    // The window is blocked during a fetch and cannot cancel it: a host that drips just above the
    // low-speed limit must not hold it for hours. Zero means no limit.
    long TotalTimeoutMs = 300'000;
    long MaxRedirects = 20;
    // Pages are compared line by line in memory; far beyond any real page.
    std::int64_t MaxBytes = 100LL * 1024 * 1024;
};

enum class DownloadFailure {
    None,
    Refused,          // a scheme other than http, https or file, also reached by a redirect
    Connect,          // host not found, connection refused
    Timeout,          // connect timeout, low-speed limit or total time
    TooManyRedirects, // more than MaxRedirects, a redirect loop
    HttpError,        // the server answered with a status of 400 or more
    TooLarge,         // more than MaxBytes
    Incomplete,       // the server closed before the whole answer arrived
    LocalFile,        // a file: address that names no readable regular file
    Write,            // the target file could not be written
    Other,            // TLS, protocol and the rest
};

struct DownloadResult {
    DownloadFailure Failure = DownloadFailure::None;
    long HttpStatus = 0;
    std::string Reason; // for diagnostics; the user is told one text whatever the cause
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

namespace modOrvane {
// True when the page is in TargetFile. An error page (status 400 or more) counts as a failure:
// comparing two "Not Found" pages would report identical files.
bool DownloadWebPage(const std::string& Url, const std::string& TargetFile);
bool DownloadWebPage(const std::string& Url, const std::string& TargetFile,
                     const DownloadLimits& limits);
} // namespace modOrvane

} // namespace orvane
