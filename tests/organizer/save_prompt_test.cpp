// The question about unsaved changes of the log: its buttons for each asker, its two texts, and
// the one asker after whom the changes are no longer cared for.
#include "organizer/save_prompt.h"

#include <gtest/gtest.h>

#include "organizer/organizer_callers.h"

namespace orrivane::organizer {
namespace {

TEST(Save_Changes_Question, LeavingOffersYesAndNoWithTheQuestionIcon) {
  for (std::string_view origin : {kTerminateThisProgram, kOrganizerFormUnload}) {
    const Message question = Save_Changes_Question(origin, std::nullopt);
    EXPECT_EQ(question.buttons, vbYesNo) << origin;
    EXPECT_EQ(question.icon, vbQuestion) << origin;
  }
}

TEST(Save_Changes_Question, StartingAnotherLogOffersCancelToo) {
  for (std::string_view origin : {kNewScheduleClick, kOpenScheduleFile}) {
    const Message question = Save_Changes_Question(origin, std::nullopt);
    EXPECT_EQ(question.buttons, vbYesNoCancel) << origin;
    EXPECT_EQ(question.icon, vbQuestion) << origin;
  }
}

TEST(Save_Changes_Question, TheOriginsAreExactTexts) {
  EXPECT_EQ(kTerminateThisProgram, "Form1.Terminate_This_Program(PlaceOfOrigin)");
  EXPECT_EQ(kOrganizerFormUnload, "Form_Unload(Cancel As Integer)");
  EXPECT_EQ(kNewScheduleClick, "mnuNewSchedule_Click()");
  EXPECT_EQ(kOpenScheduleFile, "frmOpenFile.Open_Schedule_File()");
}

TEST(Save_Changes_Question, AnyOtherAskerGetsOneOkButtonAndNoIcon) {
  for (std::string_view origin : {"", "form_unload(cancel as integer)", "Form_Unload", "mnuNewSchedule_Click",
                                  "Form1.Terminate_This_Program(PlaceOfOrigin) "}) {
    const Message question = Save_Changes_Question(origin, std::nullopt);
    EXPECT_EQ(question.buttons, vbOKOnly) << origin;
    EXPECT_EQ(question.icon, vbNoIcon) << origin;
    EXPECT_EQ(question.title, "Save Changes") << origin;
  }
}

TEST(Save_Changes_Question, ALogWithoutAFileIsOfferedToBeSaved) {
  const Message question = Save_Changes_Question(kTerminateThisProgram, std::nullopt);
  EXPECT_EQ(question.title, "Save Changes");
  EXPECT_EQ(question.text, "The current log has not been saved. Save it now?");
}

TEST(Save_Changes_Question, ALogWithAFileIsNamed) {
  const Message question = Save_Changes_Question(kNewScheduleClick, std::string("week.sdl"));
  EXPECT_EQ(question, (Message{"Save Changes", "Save changes to week.sdl?", vbYesNoCancel, vbQuestion}));
  // The name as the label holds it, even an empty one.
  EXPECT_EQ(Save_Changes_Question(kNewScheduleClick, std::string()).text, "Save changes to ?");
}

TEST(Forgets_Unsaved_Changes, OnlyWhenTheOrganizerIsUnloaded) {
  EXPECT_TRUE(Forgets_Unsaved_Changes(kOrganizerFormUnload));
  for (std::string_view origin : {kTerminateThisProgram, kNewScheduleClick, kOpenScheduleFile,
                                  std::string_view("Form_Unload"), std::string_view("")}) {
    EXPECT_FALSE(Forgets_Unsaved_Changes(origin)) << origin;
  }
}

}  // namespace
}  // namespace orrivane::organizer
