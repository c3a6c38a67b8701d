#include "intake/download/Download.h"

#include "frame/ErrorReporter.h"
#include "frame/KWCommon.h"
#include "intake/download/TargetFile.h"

#include <algorithm>
#include <cctype>
#include <curl/curl.h>
#include <memory>
#include <mutex>
#include <string_view>

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
    case CURLE_HTTP_RETURNED_ERROR:
        return DownloadFailure::HttpError;
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
}

void SetRequest(CURL* curl, const std::string& url, TargetFile& target, bool& headEnded,
                char* errors) {
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, errors);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
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

namespace modOrvane {

bool DownloadWebPage(const std::string& Url, const std::string& TargetFile) {
    return DownloadWebPage(Url, TargetFile, DownloadLimits{});
}

bool DownloadWebPage(const std::string& Url, const std::string& TargetFile,
                     const DownloadLimits& limits) {
    try {
        return FetchToFile(Url, TargetFile, limits).Ok();
    } catch (...) {
        ReportUnexpectedError("modOrvane.DownloadWebPage", "");
        return false;
    }
}

} // namespace modOrvane

} // namespace orvane
