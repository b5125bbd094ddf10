#pragma once
// The main calendar window: the month grid with the side calendars, the line that tells the
// selected date, ten buttons and the menu of the whole program. Its first activation starts
// the program. The calendar procedures are its public procedures; the large calendar mirrors
// the same grid.
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <memory>
#include <string>
#include <string_view>

#include "calendar/CalendarFace.h"
#include "platform/MenuTree.h"
#include "core/value.h"
#include "engine/calendar_engine.h"
#include "holidays/holiday_rules.h"
#include "organizer/schedule_record.h"
#include "platform/platform.h"
#include "reminders/in_use_flags.h"
#include "reminders/reminder_tick.h"

namespace orrivane {


class Form1 : public QMainWindow {
  Q_OBJECT
 public:
  Form1();

  // ---- Controls --------------------------------------------------------------------------
  CalendarFace face;
  QLabel* lblStoreMonth;
  QLabel* lblStoreYear;
  QLabel* lblStoreScheduleFileName;
  QLabel* lblStoreScheduleFilePath;
  QLabel* lblCalendarNameOverCalendar;
  QLabel* lblMonthYear;
  QLabel* lblShowDate;
  QLabel* lblShowCalendarName;
  QLineEdit* txtShowWeekday;
  QLabel* lblDisplayDay;
  QLabel* lblDate;
  QPushButton* cmdPriorMonth;
  QPushButton* cmdNextMonth;
  QPushButton* cmdDisplayTodaysDate;
  QPushButton* cmdDisplayMonthOnCalendar;
  QPushButton* cmdFindADatesWeekday;
  QPushButton* cmdFindHolidayDates;
  QPushButton* CmdConvert;
  QPushButton* cmdPrintTheCalendar;
  QPushButton* cmdOrganizer;
  QPushButton* cmdExit;
  std::unique_ptr<MenuTree> menu;

  // ---- Month stepping and drawing ----------------------------------------------------------
  void Display_Next_Month_On_Calendar();
  void Display_Prior_Month_On_Calendar();
  void Display_Side_Calendars(const Value& Month_Name, const Value& Year_, const std::string& CalStyle);
  void Enable_Calendar_Month_Scrolling();
  // Draws a month whose first falls on `first_weekday` on both windows, with no date selected.
  void Draw_Month(int first_weekday, int length, int prior_length);
  // Sets the next (or prior) controls of both windows.
  void Enable_Next_Month(bool enabled);
  void Enable_Prior_Month(bool enabled);
  // Brings a month reached by stepping on both windows: the stores, headings and cells, then
  // the task lists and the side calendars.
  void Show_Stepped_Month(engine::YearMonth month, const std::string& style, int first_weekday);
  // Draws the month of a valid date on both windows with the date in red.
  void Draw_Selected_Date(const engine::CalendarrDate& date);

  // ---- Weekday, layout and the day line ------------------------------------------------------
  int Calendarr(std::string_view CallingSubOrigin);
  int Form1_Field_Validation_Check_Status(std::string_view Calling_Sub_Origin);
  void Format_Day_Of_Week_Label(const std::string& Month_, const Value& Date_, const Value& Year_,
                                const std::string& CalStyle, std::string_view Calling_Sub_Origin);
  void Display_Weekday(int WeekDayNo, std::string_view Calling_Sub_Origin);
  void Display_Todays_Date();
  Value Store_Format_Day_Of_Week_Label_Variables(const std::string& Variable_Name,
                                                 const std::string& Action_To_Perform, const Value& value = {});

  // ---- Conversion ------------------------------------------------------------------------
  void Cal_Conversion();
  void Convert(std::string_view Calling_Sub_Origin);

  // ---- Printing ----------------------------------------------------------------------------
  // Copies the look of the grid as it stands into the print window, asks, and prints its page.
  void Print_Calendar();

  // ---- Holidays on the calendar ------------------------------------------------------------
  // Writes the holidays of the days on show into the holiday cells of the large calendar.
  void Display_Holidays_On_Calendar(const std::string& CalStyle);
  // The keeper of the holiday table: "Holiday Name", "Holiday Date", "Holiday Month", 51 each.
  Value Store_Holiday_Data_For_Year(const std::string& Array_Name, int Element_Number,
                                    const std::string& Action_To_Perform, const Value& value = {});

  // ---- Colours -----------------------------------------------------------------------------
  int Current_Month_Color(const std::string& Action_To_Perform, int value = 0);
  void Set_Current_Month_Calendar_Colors();

  // ---- Windows and the way out ---------------------------------------------------------------
  void Activate_Large_Calendar();
  void Terminate_This_Program(std::string_view PlaceOfOrigin);
  void Form_Activate();

  // ---- Reminders ---------------------------------------------------------------------------
  // Starts tmrReminders, which ticks every five seconds until the end of the program, whatever
  // window is open or hidden.
  void Start_Reminder_Timer();
  // One tick: the due task reminders and the due reminders of no task, each half under its
  // file's flag; a tick that finds TRemin.tmp in use does nothing.
  void tmrReminders_Timer();
  // The keepers of the two in-use flags: "Evaluate" answers the flag, any other verb sets it.
  bool TRemin_Is_In_Use(bool Value_, std::string_view Action_To_Perform);
  bool NTRemin_Is_In_Use(bool Value_, std::string_view Action_To_Perform);
  // The flags themselves, for the holds of the procedures that touch the files.
  reminders::InUseFlag& Task_Reminder_Flag() { return tremin_in_use_; }
  reminders::InUseFlag& Non_Task_Reminder_Flag() { return ntremin_in_use_; }
  // The record Form1 read last: the current record of the moments tied to a task.
  const organizer::ScheduleRecord& Current_Record() const { return current_record_; }

  // The style on show, read back from the heading: "Gregorian", "Julian" or "".
  std::string Style_On_Show() const;
  // The month on show, read back from lblStoreMonth and lblStoreYear.
  engine::YearMonth Month_On_Show() const;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void Build_Controls();
  void Style_Controls();
  void Build_Menu();
  void Connect_Controls();
  void Show_Options_Notice();
  void Start_Program();

  int activations_ = 0;
  int month_color_ = 0;
  Value cal_style_;
  Value date_string_;
  holidays::Holiday_Data_Keeper holiday_table_;

  platform::TimerId tmrReminders_ = 0;
  reminders::InUseFlag tremin_in_use_;
  reminders::InUseFlag ntremin_in_use_;
  // The minute of the hour at which each reminder window last opened; none at the start.
  reminders::ReminderMinute Last_Task_Reminder_Minute;
  reminders::ReminderMinute Last_NT_Reminder_Minute;
  organizer::ScheduleRecord current_record_;
};

}  // namespace orrivane
