#pragma once
// The program's unhandled failures. A RuntimeFailure is thrown where the failure happens and
// caught at one place, the event dispatch, which tells it and ends the program.
#include <stdexcept>
#include <string>

namespace orrivane {

// Numbered as the program's run time numbers them.
enum FailureNumber : int {
  kInvalidProcedureCall = 5,
  kOverflow = 6,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kBadFileNameOrNumber = 52,
  kFileNotFound = 53,
  kBadFileMode = 54,
  kFileAlreadyOpen = 55,
  kDeviceIOError = 57,
  kInputPastEndOfFile = 62,
  kPermissionDenied = 70,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
};

// The standard description of a failure number ("Type mismatch" for 13).
std::string Failure_Description(int number);

class RuntimeFailure : public std::runtime_error {
 public:
  explicit RuntimeFailure(int number);
  RuntimeFailure(int number, const std::string& description);
  int number() const noexcept { return number_; }
  std::string description() const { return what(); }

 private:
  int number_;
};

}  // namespace orrivane
