#include "core/runtime_failure.h"

#include <gtest/gtest.h>

namespace orrivane {
namespace {

TEST(Failure_Description, NamesEveryFailureTheProgramRaises) {
  const std::pair<int, const char*> expected[] = {
      {5, "Invalid procedure call or argument"},
      {6, "Overflow"},
      {9, "Subscript out of range"},
      {11, "Division by zero"},
      {13, "Type mismatch"},
      {52, "Bad file name or number"},
      {53, "File not found"},
      {54, "Bad file mode"},
      {55, "File already open"},
      {57, "Device I/O error"},
      {62, "Input past end of file"},
      {70, "Permission denied"},
      {75, "Path/File access error"},
      {76, "Path not found"},
  };
  for (const auto& [number, description] : expected) EXPECT_EQ(Failure_Description(number), description) << number;
}

TEST(Failure_Description, AnUnknownNumberHasTheGeneralDescription) {
  EXPECT_EQ(Failure_Description(0), "Application-defined or object-defined error");
  EXPECT_EQ(Failure_Description(-1), "Application-defined or object-defined error");
}

TEST(RuntimeFailure, CarriesItsNumberAndDescription) {
  const RuntimeFailure failure(kInputPastEndOfFile);
  EXPECT_EQ(failure.number(), 62);
  EXPECT_EQ(failure.description(), "Input past end of file");
  EXPECT_STREQ(failure.what(), "Input past end of file");
}

TEST(RuntimeFailure, TakesADescriptionOfItsOwn) {
  const RuntimeFailure failure(1004, "Out of paper");
  EXPECT_EQ(failure.number(), 1004);
  EXPECT_EQ(failure.description(), "Out of paper");
}

}  // namespace
}  // namespace orrivane
