#include "intake/download/Download.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "frame/Prompter.h"
#include "intake/download/TargetFile.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <curl/curl.h>
#include <exception>
#include <memory>
#include <mutex>
#include <string_view>
#include <thread>

namespace orvane {
namespace {

// Some servers refuse a request without one.
constexpr const char* kUserAgent = "Mozilla/5.0 (compatible; Orvane)";

void InitialiseCurlOnce() {
    static std::once_flag once;
    static CURLcode status = CURLE_OK;
    std::call_once(once, [] { status = curl_global_init(CURL_GLOBAL_DEFAULT); });
    if (status != CURLE_OK) throw RuntimeError(err::CannotCreateObject, curl_easy_strerror(status));
}

std::string SchemeOf(const std::string& url) {
    if (!IsWebAddress(url)) return {};
    std::string scheme = url.substr(0, url.find(':'));
    std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return scheme;
}

// Typed addresses carry spaces and non-ASCII letters that a browser would encode before sending;
// the host is left alone so that an international name still resolves.
std::string EscapeUnsafeBytes(const std::string& url) {
    const std::size_t authority = url.find("//");
    const std::size_t start =
        authority == std::string::npos ? 0 : url.find_first_of("/?#", authority + 2);
    if (start == std::string::npos) return url;
    static const char kHex[] = "0123456789ABCDEF";
    std::string out = url.substr(0, start);
    for (std::size_t i = start; i < url.size(); ++i) {
        const unsigned char c = static_cast<unsigned char>(url[i]);
        if (c > 0x20 && c < 0x7f) {
            out += static_cast<char>(c);
        } else {
            out += '%';
            out += kHex[c >> 4];
            out += kHex[c & 15];
        }
    }
    return out;
}

DownloadFailure Classify(CURLcode code, const TargetFile& target) {
    switch (code) {
    case CURLE_OK:
        return DownloadFailure::None;
    case CURLE_UNSUPPORTED_PROTOCOL:
        return DownloadFailure::Refused;
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
        return DownloadFailure::Connect;
    case CURLE_OPERATION_TIMEDOUT:
        return DownloadFailure::Timeout;
    case CURLE_TOO_MANY_REDIRECTS:
        return DownloadFailure::TooManyRedirects;
    case CURLE_ABORTED_BY_CALLBACK:
        return DownloadFailure::Cancelled;
    case CURLE_FILESIZE_EXCEEDED:
        return DownloadFailure::TooLarge;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
        return DownloadFailure::Incomplete;
    case CURLE_WRITE_ERROR:
        return target.OverCap() ? DownloadFailure::TooLarge : DownloadFailure::Write;
    default:
        return DownloadFailure::Other;
    }
}

std::size_t WriteToTarget(char* data, std::size_t size, std::size_t count, void* user) {
    return static_cast<TargetFile*>(user)->Append(data, size * count) ? size * count : 0;
}

// libcurl takes an answer whose head was cut off by the close as an empty page; the end of the
// head is seen here so that such an answer counts as incomplete.
std::size_t WatchHead(char* data, std::size_t size, std::size_t count, void* user) {
    const std::string_view line(data, size * count);
    bool& headEnded = *static_cast<bool*>(user);
    if (line.starts_with("HTTP/"))
        headEnded = false; // each redirect's answer has its own head
    else if (line == "\r\n" || line == "\n")
        headEnded = true;
    return size * count;
}

int CheckCancel(void* user, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    const auto* cancel = static_cast<const std::atomic<bool>*>(user);
    return cancel && cancel->load() ? 1 : 0;
}

void SetLimits(CURL* curl, const DownloadLimits& limits) {
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 1L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, limits.MaxRedirects);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, limits.ConnectTimeoutMs);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, limits.LowSpeedBytesPerSecond);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, limits.LowSpeedSeconds);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, limits.TotalTimeoutMs);
    // Refuses early when the server announces the size; the write callback holds otherwise.
    curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(limits.MaxBytes));
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 2L);
    // Called about once a second even when no byte arrives, so a cancel ends a silent wait too.
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, CheckCancel);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, const_cast<std::atomic<bool>*>(limits.Cancel));
}

void SetRequest(CURL* curl, const std::string& url, TargetFile& target, bool& headEnded,
                char* errors) {
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, errors);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_USERAGENT, kUserAgent);
    // Every encoding libcurl can decode; the byte cap counts decoded bytes, so a compressed bomb
    // stops at the cap too.
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");
    // Sites that set a cookie and redirect to themselves need it back on the next hop.
    curl_easy_setopt(curl, CURLOPT_COOKIEFILE, "");
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, WriteToTarget);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &target);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, WatchHead);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &headEnded);
}

DownloadResult Fetch(const std::string& url, TargetFile& target, const DownloadLimits& limits) {
    InitialiseCurlOnce();
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    if (!curl) throw RuntimeError(err::OutOfMemory);
    char errors[CURL_ERROR_SIZE] = {};
    SetLimits(curl.get(), limits);
    const std::string escaped = EscapeUnsafeBytes(url);
    bool headEnded = false;
    SetRequest(curl.get(), escaped, target, headEnded, errors);
    const CURLcode code = curl_easy_perform(curl.get());
    DownloadResult result;
    result.Failure = Classify(code, target);
    curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &result.HttpStatus);
    result.Code = code;
    if (!result.Ok()) {
        result.Reason = *errors ? errors : curl_easy_strerror(code);
    } else if (!headEnded) {
        result.Failure = DownloadFailure::Incomplete;
        result.Reason = "the connection closed within the answer's head";
    }
    return result;
}

} // namespace

DownloadResult FetchToFile(const std::string& Url, const std::string& TargetFileName,
                           const DownloadLimits& limits) {
    const std::string scheme = SchemeOf(Url);
    if (scheme == "file") return CopyFileAddress(Url, TargetFileName, limits.MaxBytes);
    if (scheme != "http" && scheme != "https") {
        TargetFile::Discard(TargetFileName);
        return {DownloadFailure::Refused, 0, "only http, https and file addresses are fetched"};
    }
    TargetFile target(TargetFileName, limits.MaxBytes);
    if (!target.IsOpen()) return {DownloadFailure::Write, 0, target.Error()};
    DownloadResult result = Fetch(Url, target, limits);
    if (result.Ok() && !target.Keep()) return {DownloadFailure::Write, 0, target.Error()};
    return result;
}

std::string MakeDownloadFileSpec() {
    std::string extension = "tmp";
    return GetTempFileSpec("htm", extension, "");
}

namespace {

std::atomic<bool> gCancelDownload{false};
std::atomic<bool> gDownloadRunning{false};

// Runs the fetch on its own thread and lets events run here until it ends. An error thrown by the
// fetch is thrown again on this thread, where the caller's handler expects it.
DownloadResult FetchWhileEventsRun(const std::string& Url, const std::string& Target,
                                   DownloadLimits limits) {
    gCancelDownload = false;
    limits.Cancel = &gCancelDownload;
    DownloadResult result;
    std::exception_ptr error;
    std::atomic<bool> done{false};
    gDownloadRunning = true;
    std::thread worker([&] {
        try {
            result = FetchToFile(Url, Target, limits);
        } catch (...) {
            error = std::current_exception();
        }
        done = true;
    });
    while (!done) {
        DoEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    worker.join();
    gDownloadRunning = false;
    if (error) std::rethrow_exception(error);
    return result;
}

constexpr long kDownloadFailed = 31; // "Transfer failed" in the toolkit's run-time numbers

void RecordFailure(const std::string& Url, const DownloadResult& result) {
    const std::string detail = "Address: " + Url + "\r\nCause: " + FailureWords(result.Failure) +
                               "\r\nReported: " + result.Reason;
    ErrorInfo error{kDownloadFailed, "Web page not downloaded: " + FailureWords(result.Failure), 0};
    AppendErrorDetail("modOrvane.DownloadWebPage", error, detail);
}

} // namespace

std::string FailureWords(DownloadFailure failure) {
    switch (failure) {
    case DownloadFailure::None:
        return "none";
    case DownloadFailure::Refused:
        return "refused scheme (only http, https and file addresses are fetched)";
    case DownloadFailure::Connect:
        return "refused connection or unknown host";
    case DownloadFailure::Timeout:
        return "no answer in time";
    case DownloadFailure::TooManyRedirects:
        return "too many redirects";
    case DownloadFailure::TooLarge:
        return "too large";
    case DownloadFailure::Incomplete:
        return "the answer was cut short";
    case DownloadFailure::LocalFile:
        return "no readable local file at that address";
    case DownloadFailure::Write:
        return "the page could not be written to the disk";
    case DownloadFailure::Cancelled:
        return "cancelled by the user";
    case DownloadFailure::Other:
        break;
    }
    return "transfer failed";
}

void CancelDownload() {
    gCancelDownload = true;
}

bool DownloadInProgress() {
    return gDownloadRunning;
}

namespace modOrvane {

bool DownloadWebPage(const std::string& Url, const std::string& TargetFile) {
    return DownloadWebPage(Url, TargetFile, DownloadLimits{});
}

bool DownloadWebPage(const std::string& Url, const std::string& TargetFile,
                     const DownloadLimits& limits) {
    try {
        const DownloadResult result = FetchWhileEventsRun(Url, TargetFile, limits);
        if (!result.Ok()) RecordFailure(Url, result);
        return result.Ok();
    } catch (...) {
        ReportUnexpectedError("modOrvane.DownloadWebPage", "");
        return false;
    }
}

} // namespace modOrvane

} // namespace orvane
