// The sequential text reader over any file content: quoted texts with line breaks, bare numbers,
// empty values, open quotes, the end of the file. Every value read is also put through the
// loose value's conversions, and written back and read again.
#include <cstdint>
#include <string>

#include "core/sequential_file.h"
#include "core/text.h"
#include "core/value.h"
#include "fuzz_harness.h"

namespace {

using orrivane::RuntimeFailure;
using orrivane::SequentialReader;
using orrivane::SequentialWriter;
using orrivane::Value;
using orrivane::fuzz::Defined;
using orrivane::fuzz::Expect;

const char* Kind(const Value& v) { return v.is_empty() ? "empty" : v.is_number() ? "number" : "text"; }

// What the writer makes of a value reads back as the same value, of the same kind. A double
// quote inside a text has no written form (the format has no escape), so such a text is left out.
void Check_Written_Form(const Value& value) {
  if (value.text().find('"') != std::string::npos) return;
  SequentialReader again = SequentialReader::From_Text(SequentialWriter::Format(value) + "\r\n");
  const Value read = again.Input();
  Expect(read.is_empty() == value.is_empty() && read.is_number() == value.is_number() && read.text() == value.text(),
         std::string("written as ") + SequentialWriter::Format(value) + ", a " + Kind(value) + " reads back as the " +
             Kind(read) + " " + read.text());
}

// The conversions a reader of the log applies to a field.
void Use_As_Field(const Value& value) {
  Defined([&] { static_cast<void>(value.number()); });
  Defined([&] { static_cast<void>(value.whole()); });
  Defined([&] { static_cast<void>(value.plus_zero().text()); });
  static_cast<void>(Compare(value, Value(-1)));
  static_cast<void>(Compare(Value("-1"), value));
  static_cast<void>(orrivane::Is_Numeric(value.text()));
  Defined([&] { static_cast<void>(orrivane::text::Val(value.text())); });
}

void Read_To_The_End(const std::string& content) {
  SequentialReader reader = SequentialReader::From_Text(content);
  while (!reader.Eof()) {
    Value value;
    try {
      value = reader.Input();
    } catch (const RuntimeFailure& failure) {
      // A number too large to hold is the one failure before the end.
      Expect(failure.number() == orrivane::kOverflow || failure.number() == orrivane::kInputPastEndOfFile,
             "reading a value failed with " + std::to_string(failure.number()));
      return;
    }
    Use_As_Field(value);
    Check_Written_Form(value);
  }
  try {
    reader.Input();
  } catch (const RuntimeFailure& failure) {
    Expect(failure.number() == orrivane::kInputPastEndOfFile,
           "reading past the end failed with " + std::to_string(failure.number()));
    return;
  }
  orrivane::fuzz::Finding("reading past the end answered a value");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input([&] { Read_To_The_End(std::string(orrivane::fuzz::As_Text(data, size))); });
}
