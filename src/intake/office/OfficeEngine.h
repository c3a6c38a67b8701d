#pragma once
// The office suite as a text engine: it opens a document (HTML, text, or any format it reads)
// and saves what a reader sees as text, in one of the five save formats.
#include <chrono>
#include <functional>
#include <string>

namespace office {

// The save formats, numbered as the options store them.
enum SaveFormat {
    kTextOnly = 2,
    kTextWithLineBreaks = 3,
    kDosText = 4,
    kDosTextWithLineBreaks = 5,
    kEncodedText = 7,
};

// A 20 MB page takes the suite about 20 s on an idle machine; a run beyond five minutes hangs.
constexpr std::chrono::milliseconds kDefaultTimeLimit = std::chrono::minutes(5);

// The page width of the "with line breaks" formats.
constexpr int kPageWidth = 80;

enum class Status { Converted, BadFormat, NotStarted, NotOpened, TimedOut, TargetNotWritten };

struct Outcome {
    Status status = Status::NotStarted;
    std::string detail; // what the suite printed, or the path that failed
    bool ok() const { return status == Status::Converted; }
};

struct SuiteSettings {
    std::string program; // full path of soffice
    std::chrono::milliseconds timeLimit{kDefaultTimeLimit};
    std::function<void()> poll; // lets the caller's window breathe while the suite runs
};

// The suite's export filter for a save format ("txt:Text (encoded):MS_1252,CRLF,,,"); empty
// for a number that is not a save format.
std::string ExportFilter(int saveFormat);

// Every LF without a CR before it becomes CRLF: the suite writes line breaks inside a
// paragraph as a bare LF even when asked for CRLF.
std::string NormaliseLineEnds(const std::string& text);

// Converts `source` to `target` (overwritten). Each run has its own profile and HOME in a
// private temporary folder, removed afterwards, so it neither hands the job to a suite the
// user has open nor disturbs it, and two runs at once do not meet.
Outcome ConvertToText(const std::string& source, const std::string& target, int saveFormat,
                      const SuiteSettings& settings);

// A line for a person: what went wrong, with the file.
std::string Describe(const Outcome& outcome, const std::string& source);

} // namespace office
