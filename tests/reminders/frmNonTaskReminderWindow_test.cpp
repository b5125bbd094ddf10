// The window of reminders of no task: its two forms and their sizes, the list, the font that
// follows the length of the message, and long messages kept within the window.
#include "reminders/reminder_window_test.h"

namespace orrivane {
namespace {

using controls::Px;
using reminders::samples::Message_At;
using testing::ReminderWindowTest;

class frmNonTaskReminderWindowTest : public ReminderWindowTest {
 protected:
  // Messages due at 14:30 on March 5, 2001, the window standing after the first tick in it.
  void Fire(const std::vector<reminders::NonTaskReminderRecord>& records) {
    Write_Messages(records);
    Start_At(2001, 3, 5, 14, 29, 55);
    machine().Advance_Seconds(5);
    ASSERT_TRUE(messages().isVisible());
  }
  void Expect_Within_Window(const QWidget* control) {
    const QRect place(control->mapTo(&messages(), QPoint(0, 0)), control->size());
    EXPECT_TRUE(messages().rect().contains(place)) << control->objectName().toStdString();
  }
};

TEST_F(frmNonTaskReminderWindowTest, BeforeItsFirstFillingItSaysReminderWithNoMessage) {
  EXPECT_EQ(Title(messages()), "Reminder");
  EXPECT_EQ(Text(messages().lblMessage), "");
  EXPECT_EQ(Text(messages().Label4), "Date of Message:");
  EXPECT_EQ(Text(messages().Label2), "Time of Message:");
}

TEST_F(frmNonTaskReminderWindowTest, TheSingleMessageFormHasItsSize) {
  Fire({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  EXPECT_EQ(messages().FraMessage->y(), 0);
  EXPECT_EQ(messages().cmdClose->y(), Px(2040));
  EXPECT_EQ(messages().height(), Px(2865 - 405));
  Expect_Within_Window(messages().cmdClose);
  Expect_Within_Window(messages().FraMessage);
}

TEST_F(frmNonTaskReminderWindowTest, TheSeveralMessagesFormHasItsSizeAndItsList) {
  Fire({Message_At(4, "Backup", "Copy the log to the other disk.", "14:30, March 5, 2001"),
        Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  EXPECT_TRUE(messages().cboReminderList->isVisible());
  EXPECT_EQ(messages().FraMessage->y(), Px(480));
  EXPECT_EQ(messages().cmdClose->y(), Px(2520));
  EXPECT_EQ(messages().height(), Px(3330 - 405));
  Expect_Within_Window(messages().cmdClose);
  Expect_Within_Window(messages().FraMessage);
  EXPECT_FALSE(messages().cboReminderList->geometry().intersects(messages().FraMessage->geometry()));
  // "Please select a reminder message from the list." has 48 characters.
  EXPECT_EQ(messages().lblMessage->font().pointSize(), 10);

  Choose_With_Keys(messages().cboReminderList, 0);
  EXPECT_EQ(Text(messages().lblMessage), "Copy the log to the other disk.");
  EXPECT_EQ(messages().lblMessage->font().pointSize(), 10);
  Choose_With_Keys(messages().cboReminderList, 1);
  EXPECT_EQ(Text(messages().lblMessage), "Call the bank.");
  EXPECT_EQ(messages().lblMessage->font().pointSize(), 12);
  // The caption and the moment stay.
  EXPECT_EQ(Title(messages()), "2 Reminders");
  EXPECT_EQ(Text(messages().lblTimeOfMessage), "2:30 AM");
  EXPECT_FALSE(main().NTRemin_Is_In_Use(false, "Evaluate"));
}

TEST_F(frmNonTaskReminderWindowTest, AChosenMessageThatHasGoneShowsTheLastOfTheFile) {
  Fire({Message_At(4, "Backup", "Copy the log.", "14:30, March 5, 2001"),
        Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  Write_Messages({Message_At(2, "Bank", "Call the bank.", "14:30, March 5, 2001"),
                  Message_At(6, "Other", "The last one.", "09:00, March 9, 2001")});
  Choose_With_Keys(messages().cboReminderList, 0);
  EXPECT_EQ(Text(messages().lblMessage), "The last one.");
}

TEST_F(frmNonTaskReminderWindowTest, TheFontFollowsTheLengthOfTheMessage) {
  struct Case {
    int length;
    int points;
  };
  for (const Case c : {Case{12, 14}, Case{13, 12}, Case{30, 12}, Case{31, 10}, Case{65, 10}, Case{66, 8}}) {
    messages().Adjust_Message_Font_Size(static_cast<std::size_t>(c.length));
    EXPECT_EQ(messages().lblMessage->font().pointSize(), c.points) << c.length;
  }
  Fire({Message_At(1, "Long", std::string(66, 'x'), "14:30, March 5, 2001")});
  EXPECT_EQ(messages().lblMessage->font().pointSize(), 8);
}

TEST_F(frmNonTaskReminderWindowTest, ALongMessageWrapsWithinTheWindow) {
  std::string message;
  while (message.size() < 250) message += "Copy the log to the other disk. ";
  Fire({Message_At(1, "Long", message, "14:30, March 5, 2001")});
  const QLabel* label = messages().lblMessage;
  EXPECT_TRUE(label->wordWrap());
  EXPECT_LE(label->heightForWidth(label->width()), label->height());
  Expect_Within_Window(label);
}

TEST_F(frmNonTaskReminderWindowTest, CloseOnlyHides) {
  Fire({Message_At(1, "Bank", "Call the bank.", "14:30, March 5, 2001")});
  Click(messages().cmdClose);
  EXPECT_FALSE(messages().isVisible());
  EXPECT_EQ(Title(messages()), "Reminder: Bank");
}

}  // namespace
}  // namespace orrivane
