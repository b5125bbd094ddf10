// The one message type: its numbers, the empty message, and the tables of coded messages.
#include "core/message.h"

#include <gtest/gtest.h>

namespace orrivane {
namespace {

TEST(Message, ButtonsIconsAndAnswersAreNumberedAsTheProgramNumbersThem) {
  EXPECT_EQ(vbOKOnly, 0);
  EXPECT_EQ(vbOKCancel, 1);
  EXPECT_EQ(vbYesNoCancel, 3);
  EXPECT_EQ(vbYesNo, 4);
  EXPECT_EQ(vbNoIcon, 0);
  EXPECT_EQ(vbCritical, 16);
  EXPECT_EQ(vbQuestion, 32);
  EXPECT_EQ(vbExclamation, 48);
  EXPECT_EQ(vbInformation, 64);
  EXPECT_EQ(vbOK, 1);
  EXPECT_EQ(vbCancel, 2);
  EXPECT_EQ(vbYes, 6);
  EXPECT_EQ(vbNo, 7);
  EXPECT_STREQ(kCarriageReturn, "\r");
}

TEST(Message, TheEmptyMessageHasNeitherTitleNorText) {
  EXPECT_TRUE(Message{}.empty());
  EXPECT_FALSE((Message{"Title", ""}).empty());
  EXPECT_FALSE((Message{"", "Text"}).empty());
}

TEST(Message, AnExclamationHasOneOkButton) {
  const Message message = Exclamation_Message("No Month Selected", "A month must be selected.");
  EXPECT_EQ(message, (Message{"No Month Selected", "A month must be selected.", vbOKOnly, vbExclamation}));
}

TEST(MessageTable, TheRowOfACodeAndTheEmptyMessageForAnother) {
  const CodedMessage table[] = {
      {1, Exclamation_Message("One", "The first.")},
      {-1, {"General", "More than one.", vbOKCancel, vbQuestion}},
      {6, Exclamation_Message("Six", "The sixth.")},
  };
  EXPECT_EQ(Message_Of(table, 1).title, "One");
  EXPECT_EQ(Message_Of(table, 6).text, "The sixth.");
  EXPECT_EQ(Message_Of(table, -1), (Message{"General", "More than one.", vbOKCancel, vbQuestion}));
  EXPECT_TRUE(Message_Of(table, 0).empty());
  EXPECT_TRUE(Message_Of(table, 2).empty());
  EXPECT_TRUE(Message_Of({}, 1).empty());
}

}  // namespace
}  // namespace orrivane
