#include "core/runtime_failure.h"

#include <array>
#include <utility>

namespace orrivane {

std::string Failure_Description(int number) {
  static constexpr std::array<std::pair<int, const char*>, 14> kDescriptions{{
      {kInvalidProcedureCall, "Invalid procedure call or argument"},
      {kOverflow, "Overflow"},
      {kSubscriptOutOfRange, "Subscript out of range"},
      {kDivisionByZero, "Division by zero"},
      {kTypeMismatch, "Type mismatch"},
      {kBadFileNameOrNumber, "Bad file name or number"},
      {kFileNotFound, "File not found"},
      {kBadFileMode, "Bad file mode"},
      {kFileAlreadyOpen, "File already open"},
      {kDeviceIOError, "Device I/O error"},
      {kInputPastEndOfFile, "Input past end of file"},
      {kPermissionDenied, "Permission denied"},
      {kPathFileAccessError, "Path/File access error"},
      {kPathNotFound, "Path not found"},
  }};
  for (const auto& [n, text] : kDescriptions) {
    if (n == number) return text;
  }
  return "Application-defined or object-defined error";
}

RuntimeFailure::RuntimeFailure(int number) : RuntimeFailure(number, Failure_Description(number)) {}

RuntimeFailure::RuntimeFailure(int number, const std::string& description)
    : std::runtime_error(description), number_(number) {}

}  // namespace orrivane
