// The licence rows are the license's published text, line for line, padded with empty rows.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "shell/licence_text.h"

namespace orrivane::shell {
namespace {

// The copy of the license at the top of the source tree, one folder above the test data.
std::string Licence_File() {
  std::ifstream file(std::string(ORRIVANE_TEST_DATA) + "/../../LICENSE", std::ios::binary);
  EXPECT_TRUE(file.is_open());
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

TEST(LicenceText, TheRowsJoinedAreTheLicenseFileByteForByte) {
  std::string joined;
  for (int row = 1; row <= Licence_Line_Count(); ++row) joined.append(Licence_Row(row)).append("\n");
  EXPECT_EQ(joined, Licence_File());
}

TEST(LicenceText, StartsWithTheTitleAndVersion) {
  EXPECT_EQ(Licence_Row(1), "                    GNU GENERAL PUBLIC LICENSE");
  EXPECT_EQ(Licence_Row(2), "                       Version 2, June 1991");
  EXPECT_EQ(Licence_Row(3), "");
}

TEST(LicenceText, TheRowsAfterTheTextUpToTheLastAreEmpty) {
  ASSERT_LE(Licence_Line_Count(), kLicenceRows - 2);
  EXPECT_FALSE(Licence_Row(Licence_Line_Count()).empty());
  for (int row = Licence_Line_Count() + 1; row <= kLicenceRows; ++row) EXPECT_EQ(Licence_Row(row), "") << row;
}

TEST(LicenceText, RowZeroAndNumbersOutsideAreEmpty) {
  EXPECT_EQ(Licence_Row(0), "");
  EXPECT_EQ(Licence_Row(-1), "");
  EXPECT_EQ(Licence_Row(kLicenceRows + 1), "");
}

}  // namespace
}  // namespace orrivane::shell
