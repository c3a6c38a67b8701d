#include "frame/RuntimeError.h"

#include <exception>
#include <new>

namespace orvane {

std::string ErrorDescription(long number) {
    switch (number) {
    case err::InvalidCall:
        return "Invalid procedure call or argument";
    case err::Overflow:
        return "Overflow";
    case err::OutOfMemory:
        return "Out of memory";
    case err::SubscriptOutOfRange:
        return "Subscript out of range";
    case err::TypeMismatch:
        return "Type mismatch";
    case err::BadFileName:
        return "Bad file name or number";
    case err::FileNotFound:
        return "File not found";
    case err::PermissionDenied:
        return "Permission denied";
    case err::PathFileAccess:
        return "Path/File access error";
    case err::PathNotFound:
        return "Path not found";
    case err::ObjectUnloaded:
        return "Object was unloaded";
    case err::CannotCreateObject:
        return "ActiveX component can't create object";
    case err::CancelSelected:
        return "Cancel was selected.";
    default:
        return "Application-defined or object-defined error";
    }
}

RuntimeError::RuntimeError(long number, const std::string& description, long lastDllError)
    : std::runtime_error(description), Number(number), LastDllError(lastDllError) {}

RuntimeError::RuntimeError(long number) : RuntimeError(number, ErrorDescription(number)) {}

ErrorInfo CurrentErrorInfo() {
    try {
        throw;
    } catch (const RuntimeError& e) {
        return {e.Number, e.what(), e.LastDllError};
    } catch (const std::bad_alloc&) {
        return {err::OutOfMemory, ErrorDescription(err::OutOfMemory), 0};
    } catch (const std::out_of_range&) {
        return {err::SubscriptOutOfRange, ErrorDescription(err::SubscriptOutOfRange), 0};
    } catch (const std::exception& e) {
        return {err::InvalidCall, e.what(), 0};
    } catch (...) {
        return {err::InvalidCall, ErrorDescription(err::InvalidCall), 0};
    }
}

} // namespace orvane
