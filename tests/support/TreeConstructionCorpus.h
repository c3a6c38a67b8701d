#pragma once
// The documents of html5lib's tree-construction data: a corpus of broken markup that every HTML
// consumer of ours must take without crash or hang.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace orvane::test {

inline std::filesystem::path TreeConstructionDir() {
    return std::filesystem::path(ORVANE_CORPORA_DIR) / "html5lib-tests/tree-construction";
}

// The text between "#data" and "#errors" of each case; some files hold raw NUL bytes, so they
// are read as bytes.
inline std::vector<std::string> TreeConstructionDocuments() {
    std::vector<std::string> docs;
    for (const auto& entry : std::filesystem::directory_iterator(TreeConstructionDir())) {
        if (entry.path().extension() != ".dat") continue;
        std::ifstream in(entry.path(), std::ios::binary);
        std::stringstream buffer;
        buffer << in.rdbuf();
        const std::string text = buffer.str();
        for (std::size_t at = text.find("#data\n"); at != std::string::npos;
             at = text.find("\n#data\n", at)) {
            const std::size_t start = text.find('\n', at + 1) + 1;
            const std::size_t end = text.find("\n#errors", start - 1);
            if (end == std::string::npos) break;
            docs.push_back(text.substr(start, end - start));
            at = end;
        }
    }
    return docs;
}

} // namespace orvane::test
