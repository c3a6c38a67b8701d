#include "intake/detagger/Convert.h"

#include "intake/detagger/LineWriter.h"
#include "intake/detagger/TextBlocks.h"
#include "intake/html/Decoder.h"
#include "intake/html/TreeBuilder.h"

#include <cstdio>
#include <memory>
#include <sys/stat.h>

namespace detagger {
namespace {

struct FileCloser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

ErrorCode ReadInput(const std::string& path, std::string& bytes) {
    struct stat st;
    if (::stat(path.c_str(), &st) != 0) return kFileNotFound;
    if (!S_ISREG(st.st_mode)) return kFileNotOpened;
    if (static_cast<std::size_t>(st.st_size) > kMaxInputBytes) return kConversionFailed;
    File f(std::fopen(path.c_str(), "rb"));
    if (!f) return kFileNotOpened;
    bytes.resize(static_cast<std::size_t>(st.st_size));
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), f.get()));
    return std::ferror(f.get()) ? kFileNotOpened : kNoError;
}

} // namespace

std::string ConvertHtml(std::string_view bytes, const Policies& policies) {
    const html::DecodedDocument page = html::DecodeDocument(bytes);
    const html::Document tree = html::ParseDocument(page.text);
    LayoutOptions options;
    options.displayLinkUrls = policies.displayLinkUrls;
    options.numberLinks = policies.addUrlReferences;
    return WriteLines(LayOutBlocks(tree.Root(), options), policies);
}

ErrorCode ConvertFile(const std::string& input, const std::string& output,
                      const Policies& policies) {
    if (input.empty()) return kNoHtmlFile;
    if (output.empty()) return kNoTextFile;
    try {
        std::string bytes;
        if (const ErrorCode e = ReadInput(input, bytes)) return e;
        const std::string text = ConvertHtml(bytes, policies);
        File out(std::fopen(output.c_str(), "wb"));
        if (!out) return kFileNotOpened;
        const bool written = std::fwrite(text.data(), 1, text.size(), out.get()) == text.size();
        return written && std::fclose(out.release()) == 0 ? kNoError : kFileNotOpened;
    } catch (...) { // out of memory: a code, never an exception into a C caller
        return kConversionFailed;
    }
}

} // namespace detagger
