#include "report/Inputs.h"

#include "intake/download/Download.h"

#include <cstdio>
#include <unistd.h>

namespace orvane::report {

LoadedInput LoadInput(const std::string& source) {
    if (!IsWebAddress(source)) return LoadLocalFile(source);
    LoadedInput in;
    char name[] = "/tmp/orvane-reportXXXXXX";
    const int fd = mkstemp(name);
    if (fd < 0) return in;
    close(fd);
    const DownloadResult r = FetchToFile(source, name, DownloadLimits{});
    in.ok = r.Ok() && ReadWholeFile(name, in.bytes);
    std::remove(name);
    in.base.url = source;
    in.identity = source;
    return in;
}

} // namespace orvane::report
