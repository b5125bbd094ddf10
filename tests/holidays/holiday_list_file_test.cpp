// The holiday list file: records byte for byte, the added extension, the reader's cut and its
// failures, and the list line taken apart on its way to the calendar.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "holidays/holiday_list.h"
#include "holidays/holiday_list_file.h"
#include "support/failure_of.h"

namespace orrivane::holidays {
namespace {

using testing::Read_Bytes;
using testing::TempFolder;
using testing::Write_Bytes;

using orrivane::testing::Failure_Of;

std::vector<std::string> Read_All(const std::string& path) {
  std::vector<std::string> lines;
  Read_Holiday_List_File(path, [&](std::string line) { lines.push_back(std::move(line)); });
  return lines;
}

TEST(HolidayListFile, ARecordIsTheLineBetweenQuotesEndedByCrLf) {
  EXPECT_EQ(Holiday_List_Record("Easter, Sunday, April 20, 2003"), "\"Easter, Sunday, April 20, 2003\"\r\n");
  EXPECT_EQ(Holiday_List_Record("Election Day, U.S., Tuesday, November 4, 2003"),
            "\"Election Day, U.S., Tuesday, November 4, 2003\"\r\n");
}

TEST(HolidayListFile, TheExtensionIsAddedUnlessTheNameEndsInItExactly) {
  EXPECT_EQ(Holiday_List_File_Name("Holidays"), "Holidays.dte");
  EXPECT_EQ(Holiday_List_File_Name("Holidays.dte"), "Holidays.dte");
  EXPECT_EQ(Holiday_List_File_Name("HOLIDAYS.DTE"), "HOLIDAYS.DTE.dte");
  EXPECT_EQ(Holiday_List_File_Name("list.Dte"), "list.Dte.dte");
  EXPECT_EQ(Holiday_List_File_Name("list.txt"), "list.txt.dte");
  EXPECT_EQ(Holiday_List_File_Name(".dte"), ".dte");
  EXPECT_EQ(Holiday_List_File_Name("dte"), "dte.dte");
  EXPECT_EQ(Holiday_List_File_Name(""), ".dte");
}

TEST(HolidayListFile, TheDefaultNameAndPattern) {
  EXPECT_EQ(kDefaultHolidayListName, "Holidays.dte");
  EXPECT_EQ(kHolidayListPattern, "*.dte");
}

TEST(HolidayListFile, AWrittenListStandsByteForByte) {
  TempFolder folder;
  const std::string path = folder.file("Holidays.dte");
  Holiday_List_Writer writer(path);
  ASSERT_TRUE(writer.Is_Open());
  writer.Write_Record("Easter, Sunday, April 20, 2003");
  writer.Write_Record("Election Day, U.S., Tuesday, November 4, 2003");
  writer.Close();
  EXPECT_EQ(Read_Bytes(path),
            "\"Easter, Sunday, April 20, 2003\"\r\n\"Election Day, U.S., Tuesday, November 4, 2003\"\r\n");
}

TEST(HolidayListFile, OpeningForOutputEmptiesTheFile) {
  TempFolder folder;
  const std::string path = folder.file("old.dte");
  Write_Bytes(path, "\"a long line that was here before\"\r\n\"and another\"\r\n");
  Holiday_List_Writer writer(path);
  writer.Write_Record("Halloween, Sunday, October 31, 1582");
  writer.Close();
  EXPECT_EQ(Read_Bytes(path), "\"Halloween, Sunday, October 31, 1582\"\r\n");
}

TEST(HolidayListFile, AnEmptyListWritesAnEmptyFile) {
  TempFolder folder;
  Holiday_List_Writer writer(folder.file("none.dte"));
  writer.Close();
  EXPECT_EQ(Read_Bytes(folder.file("none.dte")), "");
}

TEST(HolidayListFile, AFileThatCannotBeOpenedIsNotOpen) {
  TempFolder folder;
  EXPECT_FALSE(Holiday_List_Writer(folder.file("no such folder/list.dte")).Is_Open());
  std::filesystem::create_directory(folder.file("taken.dte"));
  EXPECT_FALSE(Holiday_List_Writer(folder.file("taken.dte")).Is_Open());
}

TEST(HolidayListFile, ANameOfBlanksNamesNoFile) {
  TempFolder folder;
  EXPECT_FALSE(Holiday_List_Writer(folder.file("   .dte")).Is_Open());
  EXPECT_FALSE(Holiday_List_Writer(folder.file(".dte")).Is_Open());
  EXPECT_FALSE(std::filesystem::exists(folder.file("   .dte")));
  EXPECT_TRUE(Holiday_List_Writer(folder.file(" a .dte")).Is_Open());
}

TEST(HolidayListFile, TheMessagesOfSaving) {
  EXPECT_EQ(Overwrite_Question().title, "Confirm Overwrite");
  EXPECT_EQ(Overwrite_Question().text, "A file with this name already exists. Overwrite?");
  EXPECT_EQ(Invalid_File_Name_Refusal().title, "Rename");
  EXPECT_EQ(Invalid_File_Name_Refusal().text, "That file name is invalid.");
}

TEST(HolidayListFile, AListReadBackGivesTheSameLinesInTheSameOrder) {
  TempFolder folder;
  const std::vector<std::string> lines = {"Easter, Sunday, April 20, 2003",
                                          "Election Day, U.S., Tuesday, November 4, 2003",
                                          "New Years Day, Wednesday, January 1, 2003"};
  Holiday_List_Writer writer(folder.file("list.dte"));
  for (const std::string& line : lines) writer.Write_Record(line);
  writer.Close();
  EXPECT_EQ(Read_All(folder.file("list.dte")), lines);
}

TEST(HolidayListFile, TheReaderDropsBothEndsUnseen) {
  TempFolder folder;
  Write_Bytes(folder.file("odd.dte"), "<abc>\r\nxy\r\n'q'\r\n");
  EXPECT_EQ(Read_All(folder.file("odd.dte")), (std::vector<std::string>{"abc", "", "q"}));
}

TEST(HolidayListFile, TheLastLineMayLackItsEnd) {
  TempFolder folder;
  Write_Bytes(folder.file("open.dte"), "\"one\"\r\n\"two\"");
  EXPECT_EQ(Read_All(folder.file("open.dte")), (std::vector<std::string>{"one", "two"}));
}

TEST(HolidayListFile, LinesEndedByALineFeedOrACarriageReturnAloneAreLinesToo) {
  TempFolder folder;
  Write_Bytes(folder.file("unix.dte"), "\"one\"\n\"two\"\r\"three\"\r\n");
  EXPECT_EQ(Read_All(folder.file("unix.dte")), (std::vector<std::string>{"one", "two", "three"}));
}

TEST(HolidayListFile, AnEmptyFileIsInputPastEndOfFile) {
  TempFolder folder;
  Write_Bytes(folder.file("empty.dte"), "");
  EXPECT_EQ(Failure_Of([&] { Read_All(folder.file("empty.dte")); }), kInputPastEndOfFile);
}

TEST(HolidayListFile, AMissingFileIsFileNotFoundAndAFolderIsNoFile) {
  TempFolder folder;
  EXPECT_EQ(Failure_Of([&] { Read_All(folder.file("missing.dte")); }), kFileNotFound);
  std::filesystem::create_directory(folder.file("folder.dte"));
  EXPECT_EQ(Failure_Of([&] { Read_All(folder.file("folder.dte")); }), kPathFileAccessError);
}

TEST(HolidayListFile, ALineTooShortToCutFailsAfterTheLinesBeforeIt) {
  TempFolder folder;
  Write_Bytes(folder.file("short.dte"), "\"one\"\r\nx\r\n\"three\"\r\n");
  std::vector<std::string> lines;
  EXPECT_EQ(Failure_Of([&] { Read_Holiday_List_File(folder.file("short.dte"), [&](std::string l) { lines.push_back(l); }); }),
            kInvalidProcedureCall);
  EXPECT_EQ(lines, std::vector<std::string>{"one"});
  Write_Bytes(folder.file("blank.dte"), "\"one\"\r\n\r\n");
  EXPECT_EQ(Failure_Of([&] { Read_All(folder.file("blank.dte")); }), kInvalidProcedureCall);
}

// ---- Read into a list, in place ------------------------------------------------------------------

std::vector<std::string> Read_Into_A_List(const std::string& path, Holiday_List& list) {
  Read_Holiday_List_File(path, list);
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < list.Count(); ++row) lines.push_back(list.Line(row));
  return lines;
}

TEST(HolidayListFile, ReadIntoAListEveryFileGivesTheLinesReadOneByOne) {
  TempFolder folder;
  const std::string big = [] {
    std::string records;
    for (int i = 0; i < 20000; ++i) records += "\"line " + std::to_string(i) + "\"\r\n";
    return records;
  }();
  for (const std::string& bytes : {std::string("<abc>\r\nxy\r\n'q'\r\n"), std::string("\"one\"\r\n\"two\""),
                                   std::string("\"one\"\n\"two\"\r\"three\"\r\n"), std::string("\"only\"\r"), std::string("\"\0\"\r\n", 5), big}) {
    Write_Bytes(folder.file("any.dte"), bytes);
    Holiday_List list;
    EXPECT_EQ(Read_Into_A_List(folder.file("any.dte"), list), Read_All(folder.file("any.dte"))) << bytes.substr(0, 40);
  }
}

TEST(HolidayListFile, ReadIntoAListTheLinesGoBehindThoseThere) {
  TempFolder folder;
  Write_Bytes(folder.file("a.dte"), "\"one\"\r\n\"two\"\r\n");
  Write_Bytes(folder.file("b.dte"), "\"three\"\r\n");
  Holiday_List list;
  Read_Holiday_List_File(folder.file("a.dte"), list);
  list.Append_Entry(*Holiday_Number("Easter"), 2003);
  EXPECT_EQ(Read_Into_A_List(folder.file("b.dte"), list),
            (std::vector<std::string>{"one", "two", "Easter, Sunday, April 20, 2003", "three"}));
}

TEST(HolidayListFile, ReadIntoAListAFailureKeepsTheLinesBeforeIt) {
  TempFolder folder;
  Write_Bytes(folder.file("short.dte"), "\"one\"\r\nx\r\n\"three\"\r\n");
  Holiday_List list;
  EXPECT_EQ(Failure_Of([&] { Read_Holiday_List_File(folder.file("short.dte"), list); }), kInvalidProcedureCall);
  ASSERT_EQ(list.Count(), 1u);
  EXPECT_EQ(list.Line(0), "one");
  Write_Bytes(folder.file("empty.dte"), "");
  Holiday_List empty;
  EXPECT_EQ(Failure_Of([&] { Read_Holiday_List_File(folder.file("empty.dte"), empty); }), kInputPastEndOfFile);
  EXPECT_EQ(empty.Count(), 0u);
  EXPECT_EQ(Failure_Of([&] { Read_Holiday_List_File(folder.file("missing.dte"), empty); }), kFileNotFound);
  std::filesystem::create_directory(folder.file("folder.dte"));
  EXPECT_EQ(Failure_Of([&] { Read_Holiday_List_File(folder.file("folder.dte"), empty); }), kPathFileAccessError);
}

TEST(HolidayListFile, TheDateOfAListLine) {
  const Holiday_Line_Date easter = Date_Of_Holiday_List_Line("Easter, Sunday, April 20, 2003");
  EXPECT_EQ(easter.month, "April");
  EXPECT_EQ(easter.date, "20");
  EXPECT_EQ(easter.year, "2003");
  const Holiday_Line_Date patrick = Date_Of_Holiday_List_Line("St. Patricks' Day, Monday, March 17, 100100");
  EXPECT_EQ(patrick.month, "March");
  EXPECT_EQ(patrick.date, "17");
  EXPECT_EQ(patrick.year, "100100");
}

TEST(HolidayListFile, TheElectionDayLineIsNotCutAtTheCommaInsideTheName) {
  const Holiday_Line_Date election = Date_Of_Holiday_List_Line("Election Day, U.S., Tuesday, November 4, 2003");
  EXPECT_EQ(election.month, "November");
  EXPECT_EQ(election.date, "4");
  EXPECT_EQ(election.year, "2003");
}

TEST(HolidayListFile, ALineOfAnotherShapeFailsAsTheCutFails) {
  EXPECT_EQ(Failure_Of([] { Date_Of_Holiday_List_Line("no commas here"); }), kInvalidProcedureCall);
  EXPECT_EQ(Failure_Of([] { Date_Of_Holiday_List_Line(""); }), kInvalidProcedureCall);
}

}  // namespace
}  // namespace orrivane::holidays
