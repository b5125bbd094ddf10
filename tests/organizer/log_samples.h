#pragma once
// Sample records and logs shared by the tests of the record and of the log files, with the
// helpers of those tests.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/sequential_file.h"
#include "core/temp_folder.h"
#include "organizer/schedule_record.h"
#include "support/failure_of.h"

namespace orrivane::organizer::samples {

using orrivane::testing::Failure_Of;
using orrivane::testing::Read_Bytes;
using orrivane::testing::TempFolder;
using orrivane::testing::Write_Bytes;

inline std::string Kind(const Value& v) { return v.is_text() ? "text" : v.is_number() ? "number" : "empty"; }

// Field by field, of the same kind and the same text: "05" is not 5 here.
inline ::testing::AssertionResult Same_Record(const ScheduleRecord& a, const ScheduleRecord& b) {
  const auto fa = Fields_In_File_Order(a);
  const auto fb = Fields_In_File_Order(b);
  for (std::size_t i = 0; i < fa.size(); ++i) {
    if (Kind(*fa[i]) != Kind(*fb[i]) || fa[i]->text() != fb[i]->text()) {
      return ::testing::AssertionFailure() << "field " << i + 1 << ": " << Kind(*fa[i]) << " " << fa[i]->text()
                                           << " against " << Kind(*fb[i]) << " " << fb[i]->text();
    }
  }
  return ::testing::AssertionSuccess();
}

// Anna's dentist appointment at 14:30 on March 5, 2001, with one reminder a day before.
inline ScheduleRecord Dentist_Task() {
  ScheduleRecord r;
  r.Record_Number = 1;
  r.Task_Name = "Dentist";
  r.Task_Description = "Checkup";
  r.Task_Comments = "Bring X-rays";
  r.Start_Month = "March";
  r.Start_Date = "05";
  r.Start_Century = 20;
  r.Start_Year = 1;
  r.Start_Hour = "14";
  r.Start_Minute = "30";
  r.Time_Range_Flag = 0;
  r.Finish_Month = "March";
  r.Finish_Date = "05";
  r.Finish_Century = 20;
  r.Finish_Year = 1;
  r.Finish_Hour = "14";
  r.Finish_Minute = "30";
  r.Color_Code = 16711680;
  r.Person_Name = "Anna";
  r.Reminder_Status = 1;
  r.Date_String[0] = "March 4, 2001";
  r.Time_String[0] = "14:30";
  r.Date_String[1] = "March 4, 2001";
  r.Time_String[1] = "14:30";
  r.Reminder_Interval = 1;
  r.Interval_Days = 0;
  r.Interval_Hours = 0;
  r.Interval_Minutes = 0;
  return r;
}

inline ScheduleRecord Task(int number, const std::string& person, int reminder_status) {
  ScheduleRecord r = Dentist_Task();
  r.Record_Number = number;
  r.Task_Name = "Task " + std::to_string(number);
  r.Person_Name = person;
  r.Reminder_Status = reminder_status;
  return r;
}

inline std::string Repeated(const std::string& line, int times) {
  std::string out;
  for (int i = 0; i < times; ++i) out += line;
  return out;
}

inline const std::string kDentistBytes =
    "1\r\n"
    "\"Dentist\",\"Checkup\",\"Bring X-rays\",\"March\"\r\n"
    "\"05\",20,1,\"14\",\"30\"\r\n"
    "0\r\n"
    "\"March\",\"05\",20,1,\"14\",\"30\"\r\n"
    "16711680,\"Anna\"\r\n"
    "1,\"March 4, 2001\",\"14:30\",\"March 4, 2001\",\"14:30\"\r\n"
    "1,0,0,0\r\n";

inline const std::string kBenMarker28Lines = Repeated("-1\r\n", 18) + "\"Ben\"\r\n" + Repeated("-1\r\n", 9);

inline const std::string kBenMarker8Lines =
    "-1\r\n"
    "-1,-1,-1,-1\r\n"
    "-1,-1,-1,-1,-1\r\n"
    "-1\r\n"
    "-1,-1,-1,-1,-1,-1\r\n"
    "-1,\"Ben\"\r\n"
    "-1,-1,-1,-1,-1\r\n"
    "-1,-1,-1,-1\r\n";

// Writes records in the 8-line arrangement.
inline void Write_Log(const std::string& path, const std::vector<ScheduleRecord>& records) {
  SequentialWriter file(path);
  for (const ScheduleRecord& record : records) Schedule_File("Write", file, record);
}

inline std::vector<ScheduleRecord> Read_Log(const std::string& path) {
  SequentialReader file(path);
  std::vector<ScheduleRecord> records;
  while (!file.Eof()) {
    ScheduleRecord record;
    Schedule_File("Input", file, record);
    records.push_back(record);
  }
  return records;
}

}  // namespace orrivane::organizer::samples
