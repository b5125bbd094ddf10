#include "core/sequential_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "core/runtime_failure.h"
#include "core/temp_folder.h"
#include "support/failure_of.h"

namespace orrivane {
namespace {

using testing::Read_Bytes;
using testing::TempFolder;
using testing::Write_Bytes;

using orrivane::testing::Failure_Of;

// Every value of a text, read until the end.
std::vector<Value> Read_All(const std::string& content) {
  SequentialReader reader = SequentialReader::From_Text(content);
  std::vector<Value> values;
  while (!reader.Eof()) values.push_back(reader.Input());
  return values;
}

::testing::AssertionResult Is_Text(const Value& v, const std::string& text) {
  if (v.is_text() && v.text() == text) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "expected the text \"" << text << "\", got " << (v.is_text() ? "text" : v.is_number() ? "number" : "empty") << " " << v.text();
}

::testing::AssertionResult Is_Number(const Value& v, double number) {
  if (v.is_number() && v.number() == number) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "expected the number " << number << ", got " << (v.is_text() ? "text" : v.is_number() ? "number" : "empty") << " " << v.text();
}

// ---- Writing ------------------------------------------------------------------------------

TEST(SequentialWriter, FormatsTextBetweenQuotesNumbersBareAndEmptyAsNothing) {
  EXPECT_EQ(SequentialWriter::Format(Value("Anna")), "\"Anna\"");
  EXPECT_EQ(SequentialWriter::Format(Value("05")), "\"05\"");
  EXPECT_EQ(SequentialWriter::Format(Value("")), "\"\"");
  EXPECT_EQ(SequentialWriter::Format(Value(16711680)), "16711680");
  EXPECT_EQ(SequentialWriter::Format(Value(-1)), "-1");
  EXPECT_EQ(SequentialWriter::Format(Value(0.5)), "0.5");
  EXPECT_EQ(SequentialWriter::Format(Value()), "");
}

TEST(SequentialWriter, SeparatesValuesByOneCommaAndEndsLinesWithCrLf) {
  TempFolder folder;
  const std::string path = folder.file("out.txt");
  SequentialWriter writer(path);
  writer.Write_Line({Value(16711680), Value("Anna")});
  writer.Write_Line({Value(1), Value(), Value("x"), Value()});
  writer.Write_Line({Value(-1)});
  writer.Write_Line({});
  writer.Close();
  EXPECT_EQ(Read_Bytes(path), "16711680,\"Anna\"\r\n1,,\"x\",\r\n-1\r\n\r\n");
}

TEST(SequentialWriter, KeepsLineBreaksAndCommasInsideATextAsTheyAre) {
  TempFolder folder;
  const std::string path = folder.file("out.txt");
  SequentialWriter writer(path);
  writer.Write_Line({Value("Bring\r\nX-rays, please")});
  writer.Close();
  EXPECT_EQ(Read_Bytes(path), "\"Bring\r\nX-rays, please\"\r\n");
}

TEST(SequentialWriter, OutputReplacesTheFileAndAppendAddsToIt) {
  TempFolder folder;
  const std::string path = folder.file("out.txt");
  Write_Bytes(path, "old\r\n");
  SequentialWriter(path).Write_Line({Value(1)});
  EXPECT_EQ(Read_Bytes(path), "1\r\n");
  SequentialWriter(path, SequentialWriter::Mode::Append).Write_Line({Value(2)});
  EXPECT_EQ(Read_Bytes(path), "1\r\n2\r\n");
}

TEST(SequentialWriter, AppendCreatesAMissingFile) {
  TempFolder folder;
  const std::string path = folder.file("new.txt");
  SequentialWriter(path, SequentialWriter::Mode::Append).Write_Line({Value("a")});
  EXPECT_EQ(Read_Bytes(path), "\"a\"\r\n");
}

TEST(SequentialWriter, ADirectoryCannotBeWritten) {
  TempFolder folder;
  EXPECT_EQ(Failure_Of([&] { SequentialWriter writer(folder.path()); }), kPathFileAccessError);
}

// ---- Reading ------------------------------------------------------------------------------

TEST(SequentialReader, ReadsTextBetweenQuotesAndNumbersBare) {
  const auto values = Read_All("\"Anna\",16711680,\"05\",-1,0.5\r\n");
  ASSERT_EQ(values.size(), 5u);
  EXPECT_TRUE(Is_Text(values[0], "Anna"));
  EXPECT_TRUE(Is_Number(values[1], 16711680));
  EXPECT_TRUE(Is_Text(values[2], "05"));
  EXPECT_TRUE(Is_Number(values[3], -1));
  EXPECT_TRUE(Is_Number(values[4], 0.5));
}

TEST(SequentialReader, ABareNumberWithALeadingZeroIsANumber) {
  const auto values = Read_All("09\r\n");
  ASSERT_EQ(values.size(), 1u);
  EXPECT_TRUE(Is_Number(values[0], 9));
}

TEST(SequentialReader, ABareWordIsAText) {
  const auto values = Read_All("March,N/A\r\n");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[0], "March"));
  EXPECT_TRUE(Is_Text(values[1], "N/A"));
}

TEST(SequentialReader, NothingBetweenSeparatorsIsEmpty) {
  const auto values = Read_All("1,,\"x\",\r\n2\r\n");
  ASSERT_EQ(values.size(), 5u);
  EXPECT_TRUE(Is_Number(values[0], 1));
  EXPECT_TRUE(values[1].is_empty());
  EXPECT_TRUE(Is_Text(values[2], "x"));
  EXPECT_TRUE(values[3].is_empty());
  EXPECT_TRUE(Is_Number(values[4], 2));
}

TEST(SequentialReader, AnEmptyQuotedTextIsTheEmptyText) {
  const auto values = Read_All("\"\",1\r\n");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[0], ""));
}

TEST(SequentialReader, TakesTheNextValueWhetherACommaOrALineEndFollows) {
  const std::vector<Value> across_lines = Read_All("1\r\n\"a\"\r\n2\r\n");
  const std::vector<Value> on_one_line = Read_All("1,\"a\",2\r\n");
  ASSERT_EQ(across_lines.size(), 3u);
  ASSERT_EQ(on_one_line.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(across_lines[i].is_text(), on_one_line[i].is_text());
    EXPECT_EQ(across_lines[i].text(), on_one_line[i].text());
  }
}

TEST(SequentialReader, AQuotedTextMayHoldLineBreaksAndCommas) {
  const auto values = Read_All("\"Bring\r\nX-rays, please\",\"March 4, 2001\"\r\n7\r\n");
  ASSERT_EQ(values.size(), 3u);
  EXPECT_TRUE(Is_Text(values[0], "Bring\r\nX-rays, please"));
  EXPECT_TRUE(Is_Text(values[1], "March 4, 2001"));
  EXPECT_TRUE(Is_Number(values[2], 7));
}

TEST(SequentialReader, ABlankLineIsAnEmptyValue) {
  const auto values = Read_All("1\r\n\r\n2\r\n");
  ASSERT_EQ(values.size(), 3u);
  EXPECT_TRUE(Is_Number(values[0], 1));
  EXPECT_TRUE(values[1].is_empty());
  EXPECT_TRUE(Is_Number(values[2], 2));
}

TEST(SequentialReader, ReadsAFileWithoutAFinalLineEnd) {
  const auto values = Read_All("1,\"last\"");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[1], "last"));
  const auto bare = Read_All("1\r\n2");
  ASSERT_EQ(bare.size(), 2u);
  EXPECT_TRUE(Is_Number(bare[1], 2));
}

TEST(SequentialReader, AcceptsLineFeedsAndCarriageReturnsAlone) {
  const auto values = Read_All("1\n2\r3\n");
  ASSERT_EQ(values.size(), 3u);
  EXPECT_TRUE(Is_Number(values[2], 3));
}

TEST(SequentialReader, SkipsBlanksAroundValues) {
  const auto values = Read_All("  12  ,\t\"a b\"  ,x y \r\n");
  ASSERT_EQ(values.size(), 3u);
  EXPECT_TRUE(Is_Number(values[0], 12));
  EXPECT_TRUE(Is_Text(values[1], "a b"));
  EXPECT_TRUE(Is_Text(values[2], "x y"));
}

TEST(SequentialReader, DropsWhatStandsBetweenAClosingQuoteAndTheSeparator) {
  const auto values = Read_All("\"ab\"cd,2\r\n");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[0], "ab"));
  EXPECT_TRUE(Is_Number(values[1], 2));
}

TEST(SequentialReader, AnUnclosedQuoteRunsToTheEnd) {
  const auto values = Read_All("1,\"open\r\n2\r\n");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[1], "open\r\n2\r\n"));
}

TEST(SequentialReader, AQuoteInsideATextEndsIt) {
  const auto values = Read_All("\"say \"hi\"\",1\r\n");
  ASSERT_EQ(values.size(), 2u);
  EXPECT_TRUE(Is_Text(values[0], "say "));
  EXPECT_TRUE(Is_Number(values[1], 1));
}

TEST(SequentialReader, ATooLargeBareNumberOverflows) {
  SequentialReader reader = SequentialReader::From_Text("1e400\r\n");
  EXPECT_EQ(Failure_Of([&] { reader.Input(); }), kOverflow);
}

TEST(SequentialReader, EofComesAfterTheLastValue) {
  SequentialReader reader = SequentialReader::From_Text("1,2\r\n");
  EXPECT_FALSE(reader.Eof());
  reader.Input();
  EXPECT_FALSE(reader.Eof());
  reader.Input();
  EXPECT_TRUE(reader.Eof());
}

TEST(SequentialReader, AnEmptyFileIsAtItsEndAtOnce) {
  EXPECT_TRUE(SequentialReader::From_Text("").Eof());
}

TEST(SequentialReader, ReadingPastTheEndIsInputPastEndOfFile) {
  SequentialReader reader = SequentialReader::From_Text("1\r\n");
  reader.Input();
  try {
    reader.Input();
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number(), kInputPastEndOfFile);
    EXPECT_EQ(failure.description(), "Input past end of file");
  }
}

TEST(SequentialReader, TrailingBlanksAreNoValue) {
  SequentialReader reader = SequentialReader::From_Text("1\r\n  ");
  reader.Input();
  EXPECT_FALSE(reader.Eof());
  EXPECT_EQ(Failure_Of([&] { reader.Input(); }), kInputPastEndOfFile);
}

TEST(SequentialReader, ReadsAFileFromDisk) {
  TempFolder folder;
  const std::string path = folder.file("in.txt");
  Write_Bytes(path, "\"a\",1\r\n");
  SequentialReader reader(path);
  EXPECT_TRUE(Is_Text(reader.Input(), "a"));
  EXPECT_TRUE(Is_Number(reader.Input(), 1));
  EXPECT_TRUE(reader.Eof());
}

TEST(SequentialReader, AMissingFileIsFileNotFound) {
  TempFolder folder;
  EXPECT_EQ(Failure_Of([&] { SequentialReader reader(folder.file("missing.txt")); }), kFileNotFound);
}

TEST(SequentialReader, ADirectoryIsAPathFileAccessError) {
  TempFolder folder;
  EXPECT_EQ(Failure_Of([&] { SequentialReader reader(folder.path()); }), kPathFileAccessError);
}

TEST(SequentialFile, WhatIsWrittenReadsBackTheSame) {
  TempFolder folder;
  const std::string path = folder.file("round.txt");
  const std::vector<Value> written{Value("Dentist"), Value("05"), Value(20), Value(), Value(-1),
                                   Value("a\r\nb"), Value(0.25), Value("")};
  SequentialWriter writer(path);
  writer.Write_Line({written.begin(), written.begin() + 3});
  writer.Write_Line({written.begin() + 3, written.end()});
  writer.Close();
  SequentialReader reader(path);
  for (const Value& expected : written) {
    const Value got = reader.Input();
    EXPECT_EQ(got.is_empty(), expected.is_empty());
    EXPECT_EQ(got.is_text(), expected.is_text());
    EXPECT_EQ(got.text(), expected.text());
  }
  EXPECT_TRUE(reader.Eof());
}

// ---- Files --------------------------------------------------------------------------------

TEST(File_Exists, TellsAReadableFile) {
  TempFolder folder;
  const std::string path = folder.file("here.txt");
  EXPECT_FALSE(File_Exists(path));
  Write_Bytes(path, "");
  EXPECT_TRUE(File_Exists(path));
}

TEST(File_Exists, ADirectoryIsNoFile) {
  TempFolder folder;
  EXPECT_FALSE(File_Exists(folder.path()));
}

TEST(Empty_File, LeavesAnEmptyFile) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, "1\r\n");
  Empty_File(path);
  EXPECT_TRUE(File_Exists(path));
  EXPECT_EQ(Read_Bytes(path), "");
  Empty_File(folder.file("TRemin.tmp"));
  EXPECT_TRUE(File_Exists(folder.file("TRemin.tmp")));
}

TEST(Delete_File, RemovesAFileAndIgnoresAMissingOne) {
  TempFolder folder;
  const std::string path = folder.file("Schedule.tmp");
  Write_Bytes(path, "1\r\n");
  Delete_File(path);
  EXPECT_FALSE(std::filesystem::exists(path));
  Delete_File(path);
  EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(Join_Path, JoinsWithOneSeparator) {
  EXPECT_EQ(Join_Path("logs", "week.sdl"), "logs/week.sdl");
  EXPECT_EQ(Join_Path("logs/", "week.sdl"), "logs/week.sdl");
  EXPECT_EQ(Join_Path("logs\\", "week.sdl"), "logs/week.sdl");
  EXPECT_EQ(Join_Path("/", "week.sdl"), "/week.sdl");
  EXPECT_EQ(Join_Path("", "week.sdl"), "week.sdl");
}

}  // namespace
}  // namespace orrivane
