#pragma once
// Run-time errors carry a number, like the errors the reporter was designed around, and the last
// error of a failed system call (errno), so that "DLL Error" texts can name it.
#include <stdexcept>
#include <string>

namespace orvane {

// Numbers the program raises or drops on purpose.
namespace err {
constexpr long InvalidCall = 5;
constexpr long Overflow = 6;
constexpr long OutOfMemory = 7;
constexpr long SubscriptOutOfRange = 9;
constexpr long TypeMismatch = 13;
constexpr long BadFileName = 52;
constexpr long FileNotFound = 53;
constexpr long PermissionDenied = 70;
constexpr long PathFileAccess = 75;
constexpr long PathNotFound = 76;
constexpr long ObjectUnloaded = 364;
constexpr long CannotCreateObject = 429;
constexpr long CancelSelected = 32755;
} // namespace err

class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(long number, const std::string& description, long lastDllError = 0);
    explicit RuntimeError(long number); // with the standard description of that number
    long Number;
    long LastDllError;
};

// The standard description of an error number ("Subscript out of range" for 9, ...).
std::string ErrorDescription(long number);

// What the reporter reads of the error being handled.
struct ErrorInfo {
    long Number = 0;
    std::string Description;
    long LastDllError = 0;
};

// Inspects the exception being handled (call only inside a catch block).
ErrorInfo CurrentErrorInfo();

} // namespace orvane
