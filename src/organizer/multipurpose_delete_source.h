#pragma once
// What the Organizer's two delete procedures need of frmMultiPurposeForm when that window's
// delete buttons call them: the entry chosen in the window's list, taking that entry out of the
// list, and putting the window back to its blank state. The window fills the source in when it
// is built and empties it when it is destroyed; the delete procedures reach it through nothing
// else.
#include <functional>
#include <string>

namespace orrivane::organizer {

// A list of the multi-purpose window.
struct MultiPurposeList {
  // The text of the entry the user chose, "" when none is chosen.
  std::function<std::string()> Chosen_Entry;
  // Takes every entry whose text equals `entry` out of the list.
  std::function<void(const std::string& entry)> Remove_Entry;
};

struct MultiPurposeDeleteSource {
  // lstListOfTasks of "Delete A Task\Event": "2001, 03Mar 05, 14:30 Dentist, #1".
  MultiPurposeList Tasks;
  // lstListOfPeople of "Delete Group Member": the members' names.
  MultiPurposeList Members;
  // The window's Form_Termination_Routine: hidden, with its frames and buttons put back.
  std::function<void()> Form_Termination_Routine;

  // True once the window has filled in every part.
  bool Filled() const {
    return Tasks.Chosen_Entry && Tasks.Remove_Entry && Members.Chosen_Entry && Members.Remove_Entry &&
           Form_Termination_Routine;
  }
};

// The one source, empty until the multi-purpose window is built.
inline MultiPurposeDeleteSource& Multi_Purpose_Delete_Source() {
  static MultiPurposeDeleteSource source;
  return source;
}

}  // namespace orrivane::organizer
