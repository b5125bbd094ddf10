// The name check of the file windows and the message that refuses a name.
#include <gtest/gtest.h>

#include <string>

#include "shell/file_names.h"

namespace orrivane::shell {
namespace {

TEST(FileNames, EachOfTheNineCharactersIsRefused) {
  for (const char forbidden : std::string("\\/:*?\"<>|")) {
    EXPECT_EQ(File_Name_Validity_Check(std::string("list") + forbidden + "2003"), 0) << forbidden;
    EXPECT_EQ(File_Name_Validity_Check(std::string(1, forbidden)), 0) << forbidden;
  }
}

TEST(FileNames, OtherNamesPass) {
  EXPECT_EQ(File_Name_Validity_Check("Holidays.dte"), 1);
  EXPECT_EQ(File_Name_Validity_Check("My list (2003) - 1, 2; 3 & 4 'x' ~!@#$%^+=[]{}.dte"), 1);
  EXPECT_EQ(File_Name_Validity_Check(""), 1);
}

TEST(FileNames, ANameOfBlanksPassesTheCheck) { EXPECT_EQ(File_Name_Validity_Check("    "), 1); }

TEST(FileNames, TheMessageListsEightCharactersLeavingOutTheQuestionMark) {
  const Message message = Invalid_File_Name_Message();
  EXPECT_EQ(message.title, "Rename");
  EXPECT_EQ(message.buttons, vbOKOnly);
  EXPECT_EQ(message.icon, vbCritical);
  EXPECT_EQ(message.text, "A file name cannot contain any of the following characters:\r\\/:*\"<>|");
  EXPECT_EQ(message.text.find('?'), std::string::npos);
  EXPECT_EQ(message.text.substr(message.text.find('\r') + 1).size(), 8u);
}

}  // namespace
}  // namespace orrivane::shell
