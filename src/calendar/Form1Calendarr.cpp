// Form1's procedures of the weekday and the layout of a date, the day line and the conversion
// between the styles: they fetch their dates from the windows by the caller's identity, hand
// plain values to the calendar engine and write its answers to the controls.
#include "calendar/Form1.h"
#include "calendar/calendar_callers.h"
#include "calendar/day_description.h"
#include "calendar/frmDateConversion.h"
#include "calendar/frmFindADate.h"
#include "calendar/frmLargeCalendar.h"
#include "holidays/frmFindAHoliday.h"
#include "core/text.h"
#include "engine/calendar_engine.h"
#include "organizer/date_time_text.h"
#include "organizer/log_file.h"
#include "platform/controls.h"
#include "platform/message_box.h"
#include "platform/platform.h"
#include "platform/window_registry.h"
#include "shell/frmAbout.h"

namespace orrivane {

namespace {

using engine::CalendarStyle;
using platform::Machine;
using platform::Show_Message;
using controls::Text_Of;

CalendarStyle Style_Of(const std::string& text) {
  return engine::Calendar_Style_From_Text(text).value_or(CalendarStyle::Gregorian);
}


// "March 5, 2001": month up to the first blank, date up to the comma, the year two places after
// the comma.
struct ShownDate {
  std::string month;
  std::string date;
  std::string year;
};

ShownDate Split_Shown_Date(const std::string& shown) {
  const long long blank = text::InStr(shown, " ");
  const long long comma = text::InStr(shown, ",");
  return {text::Left(shown, blank - 1), text::Mid(shown, blank + 1, comma - blank - 1), text::Mid(shown, comma + 2)};
}

std::string Shown_Date_Text(const std::string& month, long long date, long long year) {
  return month + " " + std::to_string(date) + ", " + std::to_string(year);
}

}  // namespace

// ---- Calendarr ---------------------------------------------------------------------------------

int Form1::Calendarr(std::string_view CallingSubOrigin) {
  engine::CalendarrDate date;
  bool draw = false;
  if (CallingSubOrigin == calendar::kFindADateOutputDay) {
    const frmFindADate& find = Window<frmFindADate>();
    date.month = Text_Of(find.ComboMonths);
    date.date = Value(Text_Of(find.ComboDate)).whole();
    date.century = Value(Text_Of(find.ComboCentury)).whole();
    date.two_digit_year = Value(Text_Of(find.ComboYear)).whole();
    date.style = Style_Of(Text_Of(find.ComboCalendar));
  } else if (CallingSubOrigin == calendar::kFindADateOutputDayOnForm1) {
    const frmFindADate& find = Window<frmFindADate>();
    const ShownDate shown = Split_Shown_Date(controls::Caption(find.lblShowDate));
    date = engine::Calendarr_Date_From_Year(shown.month, Value(shown.date).whole(), Value(shown.year).whole(),
                                            Style_Of(controls::Caption(find.lblShowCalendarName)));
    draw = true;
  } else if (CallingSubOrigin == calendar::kCalendarrCmdOKClick) {
    const frmDateConversion& conversion = Window<frmDateConversion>();
    date.month = controls::Caption(conversion.lblConvertedMonth);
    date.date = Value(controls::Caption(conversion.lblConvertedDate)).whole();
    date.century = Value(controls::Caption(conversion.lblConvertedCentury)).whole();
    date.two_digit_year = Value(controls::Caption(conversion.lblConverted2DigitYear)).whole();
    date.style = Style_Of(controls::Caption(conversion.lblConvertedStyle));
    draw = true;
  } else if (CallingSubOrigin == calendar::kDisplayTodaysDate) {
    date = engine::Calendarr_Date_From_System_Date(Machine().System_Date());
    draw = true;
  } else if (CallingSubOrigin == calendar::kFindAHolidayDisplayHolidayOnCalendar) {
    frmFindAHoliday& find = Window<frmFindAHoliday>();
    date = engine::Calendarr_Date_From_Year(find.Selected_Holiday_Sent_To_Calendar("Get Month", "null").text(),
                                            find.Selected_Holiday_Sent_To_Calendar("Get Date", "null").whole(),
                                            find.Selected_Holiday_Sent_To_Calendar("Get Year", "null").whole(),
                                            CalendarStyle::Gregorian);
    draw = true;
  } else {
    return 0;  // an identity that names no caller selects nothing
  }

  const engine::CalendarrResult result = engine::Calendarr_Compute(date);
  Show_Message(result.message);
  if (draw && result.valid) Draw_Selected_Date(date);
  if (CallingSubOrigin == calendar::kFindADateOutputDay) {
    Format_Day_Of_Week_Label(date.month, date.date, date.year(), engine::Calendar_Style_Name(date.style),
                             calendar::kForm1CalendarrForFindADate);
  }
  return result.valid ? result.weekday : 0;
}

void Form1::Draw_Selected_Date(const engine::CalendarrDate& date) {
  const std::string style = engine::Calendar_Style_Name(date.style);
  const std::string year = std::to_string(date.year());
  controls::Set_Caption(lblStoreMonth, date.month);
  controls::Set_Caption(lblStoreYear, year);
  Enable_Calendar_Month_Scrolling();
  const auto grid = engine::Calendarr_Month_Grid(date);
  if (!grid) return;
  frmLargeCalendar& large = Window<frmLargeCalendar>();
  face.Write_Grid(*grid);
  large.face.Write_Grid(*grid);
  large.Show_Task_List_Choice(date.style == CalendarStyle::Gregorian);
  large.Display_TaskList(style);
  Display_Side_Calendars(date.month, year, style);
  Display_Holidays_On_Calendar(style);
  Format_Day_Of_Week_Label(date.month, date.date, date.year(), style, calendar::kForm1Calendarr);

  const std::string shown = Shown_Date_Text(date.month, date.date, date.year());
  const std::string heading = text::UCase(style) + " CALENDAR";
  controls::Set_Caption(lblShowDate, shown);
  controls::Set_Caption(lblMonthYear, date.month + " " + year);
  controls::Set_Caption(lblShowCalendarName, style);
  controls::Set_Caption(lblCalendarNameOverCalendar, heading);
  controls::Set_Caption(large.lblCalendarNameOverCalendar, heading);
  controls::Set_Caption(large.lblMonthNumber, std::to_string(date.date));
  controls::Set_Caption(large.lblMonthNumberShadow, std::to_string(date.date));
  controls::Set_Caption(large.lblShowDate, shown);
}

int Form1::Form1_Field_Validation_Check_Status(std::string_view Calling_Sub_Origin) {
  if (Calling_Sub_Origin != calendar::kFindADateOutputDay &&
      Calling_Sub_Origin != calendar::kFindADateOutputDayOnForm1) {
    return 0;
  }
  const frmFindADate& find = Window<frmFindADate>();
  const engine::FieldCheckResult check = engine::Form1_Field_Validation_Check_Status(
      {Text_Of(find.ComboCalendar), Text_Of(find.ComboMonths), Text_Of(find.ComboDate), Text_Of(find.ComboCentury),
       Text_Of(find.ComboYear)});
  Show_Message(check.message);
  return check.status;
}

// ---- The day line ----------------------------------------------------------------------------

Value Form1::Store_Format_Day_Of_Week_Label_Variables(const std::string& Variable_Name,
                                                      const std::string& Action_To_Perform, const Value& value) {
  Value* kept = Variable_Name == "Cal_Style" ? &cal_style_ : Variable_Name == "Date_String" ? &date_string_ : nullptr;
  if (kept == nullptr) return {};
  if (Action_To_Perform == "Put") *kept = value;
  return Action_To_Perform == "Get" ? *kept : Value();
}

void Form1::Format_Day_Of_Week_Label(const std::string& Month_, const Value& Date_, const Value& Year_,
                                     const std::string& CalStyle, std::string_view Calling_Sub_Origin) {
  std::string today = Machine().System_Date();
  if (CalStyle == "Julian") {
    Store_Format_Day_Of_Week_Label_Variables("Date_String", "Put", today);
    Store_Format_Day_Of_Week_Label_Variables("Cal_Style", "Put", "Gregorian");
    Convert(calendar::kFormatDayOfWeekLabel);
    today = Store_Format_Day_Of_Week_Label_Variables("Date_String", "Get").text();
  }
  calendar::DayOfYear now;
  now.year = organizer::Parse_Date(today, "Year").whole();
  now.day = organizer::Parse_Date(today, "Date").whole();
  now.month = organizer::Parse_Date(today, "Month").whole();
  now.month_length = engine::Is_It_A_Valid_Date(now.month, "Get Max Days", now.year, CalStyle).whole();
  calendar::DayOfYear date;
  date.year = Year_.whole();
  date.day = Date_.whole();
  date.month = engine::Define_Month(Month_, "Get Month Number").whole();
  date.month_length = engine::Is_It_A_Valid_Date(Month_, "Get Max Days", Year_, CalStyle).whole();
  const calendar::DayWording wording = calendar::Describe_Day(date, now);

  QLabel* long_label = nullptr;
  QLabel* short_label = nullptr;
  if (Calling_Sub_Origin == calendar::kForm1Calendarr) {
    long_label = lblDisplayDay;
    short_label = lblDate;
  } else if (Calling_Sub_Origin == calendar::kForm1CalendarrForFindADate) {
    long_label = Window<frmFindADate>().lblDisplayDay;
    short_label = Window<frmFindADate>().lblDate;
  } else {
    return;
  }
  controls::Set_Caption(long_label, wording.long_wording);
  controls::Set_Caption(short_label, wording.short_wording);
}

void Form1::Display_Weekday(int WeekDayNo, std::string_view Calling_Sub_Origin) {
  const std::string name = WeekDayNo >= 1 && WeekDayNo <= 7 ? engine::Define_Weekday(WeekDayNo, "Get Weekday Name").text() : "";
  const std::string shown = name.empty() ? "N\\A" : " " + name;
  if (!name.empty()) controls::Set_Caption(Window<frmLargeCalendar>().lblMonthYear, name);
  QLineEdit* target = nullptr;
  if (Calling_Sub_Origin == calendar::kForm1OutputDay || Calling_Sub_Origin == calendar::kDisplayTodaysDate ||
      Calling_Sub_Origin == calendar::kDisplayWeekdayCmdOKClick ||
      Calling_Sub_Origin == calendar::kFindADateOutputDayOnForm1) {
    target = txtShowWeekday;
  } else if (Calling_Sub_Origin == calendar::kFindADateOutputDay) {
    target = Window<frmFindADate>().txtShowWeekday;
  }
  if (target != nullptr) target->setText(QString::fromStdString(shown));
}

void Form1::Display_Todays_Date() {
  Display_Weekday(Calendarr(calendar::kDisplayTodaysDate), calendar::kDisplayTodaysDate);
  controls::Set_Caption(lblShowCalendarName, "Gregorian");
  controls::Set_Caption(lblCalendarNameOverCalendar, "GREGORIAN CALENDAR");
}

// ---- Conversion between the styles ------------------------------------------------------------

void Form1::Cal_Conversion() { Convert(calendar::kCalConversion); }

void Form1::Convert(std::string_view Calling_Sub_Origin) {
  engine::ConvertDate source;
  bool open_window = true;
  if (Calling_Sub_Origin == calendar::kCalConversion) {
    const std::string shown = controls::Caption(lblShowDate);
    const long long last_blank = text::InStrRev(shown, " ");
    const std::string month_and_date = text::Left(shown, last_blank - 2);
    const long long blank = text::InStr(month_and_date, " ");
    source.month = text::Left(month_and_date, blank - 1);
    source.date = Value(text::Mid(month_and_date, blank + 1)).whole();
    source.year = Value(text::Mid(shown, last_blank + 1)).whole();
    const std::string heading = controls::Caption(lblCalendarNameOverCalendar);
    source.style = heading == "JULIAN CALENDAR" ? CalendarStyle::Julian : CalendarStyle::Gregorian;
  } else if (Calling_Sub_Origin == calendar::kFindADateConvertAboveDate) {
    const frmFindADate& find = Window<frmFindADate>();
    const ShownDate shown = Split_Shown_Date(controls::Caption(find.lblShowDate));
    source = {shown.month, Value(shown.date).whole(), Value(shown.year).whole(),
              Style_Of(controls::Caption(find.lblShowCalendarName))};
  } else if (Calling_Sub_Origin == calendar::kFormatDayOfWeekLabel ||
             Calling_Sub_Origin == calendar::kFindDateDifferenceCmdEnterClick) {
    const Value kept = Store_Format_Day_Of_Week_Label_Variables("Date_String", "Get");
    source.month = engine::Define_Month(organizer::Parse_Date(kept, "Month"), "Get Month Name").text();
    source.date = organizer::Parse_Date(kept, "Date").whole();
    source.year = organizer::Parse_Date(kept, "Year").whole();
    source.style = Style_Of(Store_Format_Day_Of_Week_Label_Variables("Cal_Style", "Get").text());
    open_window = false;
  } else {
    return;
  }

  const engine::ConvertResult result = engine::Convert_Compute(source);
  if (result.error_code != 0) {
    Show_Message(result.message);
    return;
  }
  if (open_window) {
    Window<frmDateConversion>().Show_Conversion(result);
  } else {
    Store_Format_Day_Of_Week_Label_Variables("Date_String", "Put", result.date_string);
  }
}

}  // namespace orrivane
