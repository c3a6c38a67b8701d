// A file: address is read as the local file it names, so that a page saved on the disk and the
// same page on a server can be compared by the same road.
#include "intake/download/Download.h"
#include "intake/download/TargetFile.h"

#include <curl/curl.h>
#include <filesystem>
#include <memory>

namespace orvane {
namespace {

// libcurl's parser knows the forms (file:/p, file:///p, file://localhost/p) and refuses a file
// address on another host, which this system cannot open.
bool LocalPathOf(const std::string& url, std::string& path) {
    std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> parsed(curl_url(), curl_url_cleanup);
    if (!parsed || curl_url_set(parsed.get(), CURLUPART_URL, url.c_str(), CURLU_ALLOW_SPACE))
        return false;
    char* decoded = nullptr;
    if (curl_url_get(parsed.get(), CURLUPART_PATH, &decoded, CURLU_URLDECODE)) return false;
    path = decoded;
    curl_free(decoded);
    return !path.empty();
}

DownloadResult Failed(DownloadFailure failure, const std::string& reason) {
    return {failure, 0, reason};
}

// Only a regular file: a device or a pipe could be endless or never answer.
bool IsRegularFile(const std::string& path) {
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

} // namespace

DownloadResult CopyFileAddress(const std::string& Url, const std::string& TargetFileName,
                               std::int64_t MaxBytes) {
    std::string path;
    if (!LocalPathOf(Url, path) || !IsRegularFile(path)) {
        TargetFile::Discard(TargetFileName);
        return Failed(DownloadFailure::LocalFile, Url + " names no local file");
    }
    std::unique_ptr<std::FILE, decltype(&std::fclose)> in(std::fopen(path.c_str(), "rb"),
                                                          std::fclose);
    if (!in) {
        TargetFile::Discard(TargetFileName);
        return Failed(DownloadFailure::LocalFile, path + " cannot be read");
    }
    TargetFile target(TargetFileName, MaxBytes);
    if (!target.IsOpen()) return Failed(DownloadFailure::Write, target.Error());
    char buffer[1 << 16];
    std::size_t got;
    while ((got = std::fread(buffer, 1, sizeof buffer, in.get())) > 0) {
        if (!target.Append(buffer, got))
            return Failed(target.OverCap() ? DownloadFailure::TooLarge : DownloadFailure::Write,
                          target.Error());
    }
    if (std::ferror(in.get())) return Failed(DownloadFailure::LocalFile, path + " cannot be read");
    if (!target.Keep()) return Failed(DownloadFailure::Write, target.Error());
    return {};
}

} // namespace orvane
