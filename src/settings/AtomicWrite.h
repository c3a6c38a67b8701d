#pragma once
#include <string>

namespace orvane {

// Replaces the file at path with bytes so that a crash leaves either the old file or the new one,
// never a part: the bytes go to a new file in the same folder, are flushed to disk and renamed
// over the target. An existing file keeps its permission bits; a symbolic link is written
// through. Returns false, leaving the target untouched and no temporary file behind, on failure.
bool WriteFileAtomically(const std::string& path, const std::string& bytes);

// Removes the temporary files that WriteFileAtomically left beside path when its process was
// killed mid-write (their writer is no longer running). Returns how many were removed.
int RemoveStaleTemporaries(const std::string& path);

} // namespace orvane
