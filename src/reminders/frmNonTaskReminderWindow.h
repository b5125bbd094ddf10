#pragma once
// The window that tells due reminders of no task: one message at once, or a list of several to
// choose from. It changes no file; closing it only hides it.
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <cstddef>

#include "reminders/reminder_tick.h"

namespace orrivane {

class frmNonTaskReminderWindow : public QWidget {
  Q_OBJECT
 public:
  frmNonTaskReminderWindow();

  // ---- Controls --------------------------------------------------------------------------
  QComboBox* cboReminderList;  // several messages: "4 - Backup"
  QGroupBox* FraMessage;
  QLabel* lblMessage;
  QLabel* Label4;
  QLabel* lblDateOfMessage;  // "March 5, 2001"
  QLabel* Label2;
  QLabel* lblTimeOfMessage;  // "2:30 AM"
  QPushButton* cmdClose;

  // ---- Procedures ------------------------------------------------------------------------
  // Fills the window in the form the tick chose (or leaves its message as it stands), brings it
  // up with the moment of the message, and sizes the message's font.
  void Show_Reminder(const reminders::NonTaskReminderFilling& filling);
  void Adjust_Message_Font_Size(std::size_t Length_Of_Message);

  void cboReminderList_Click();
  void cmdClose_Click();

 private:
  void Build_Controls();
  // The single-message or the several-messages arrangement: where the frame and the button
  // stand and how high the window is, in twips.
  void Arrange(int frame_top, int close_top, int window_height);
};

}  // namespace orrivane
