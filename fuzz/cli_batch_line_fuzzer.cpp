// One line of `orrivane-cal batch`, taken as the batch loop takes it: split into words as a
// shell splits them, then run as a command inside a batch, its answer written away. Every line
// must end in an answer or in its error line. An error line titled "Error" is the tool's last
// resort for an exception that is neither its own nor the program's failure, and counts as a
// finding here.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "calendar/select_month_check.h"
#include "cli/command_error.h"
#include "cli/commands.h"
#include "cli/output.h"
#include "cli/shell_words.h"
#include "core/value.h"
#include "fuzz_harness.h"

namespace {

// A holidays line over the whole reach of the holiday rules, 1582 to 100100, asks for 2.5
// million list lines: some ten seconds under the sanitizers, for a run that differs from a short
// one only in its length. Lines over more than 40 years are left to the command's own tests.
bool Asks_For_A_Long_List(const std::vector<std::string>& words) {
  if (words.front() != "holidays") return false;
  std::vector<double> years;
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (words[i] == "--holiday") ++i;  // its value is a name
    if (i >= words.size() || words[i].rfind("--", 0) == 0) continue;
    try {
      if (const std::optional<double> year = orrivane::Parse_Number(words[i])) years.push_back(*year);
    } catch (const orrivane::RuntimeFailure&) {
    }
  }
  const auto reach = [](double year) { return std::clamp(year, 1582.0, 100100.0); };
  return years.size() >= 2 && std::fabs(reach(years[0]) - reach(years[1])) > 40;
}

// The error line of an exception the tool only catches as a last resort. One message of the
// program's own has the title "Error" too: that of View Month On Calendar for several errors.
bool Is_Last_Resort(const std::string& error) {
  const orrivane::Message own =
      orrivane::calendar::Select_Month_Entry_Message(orrivane::calendar::kSeveralEntryErrors);
  return error.rfind("error: Error:", 0) == 0 && error != orrivane::cli::Error_Line(own.title, own.text);
}

std::FILE* Nowhere() {
  static std::FILE* null_device = std::fopen("/dev/null", "w");
  if (null_device == nullptr) orrivane::fuzz::Finding("cannot open /dev/null");
  return null_device;
}

void Run_Batch_Line(std::string_view input) {
  // The batch loop hands on a line without its line end, CR LF or LF.
  std::string line(input.substr(0, input.find('\n')));
  if (!line.empty() && line.back() == '\r') line.pop_back();
  const std::optional<std::vector<std::string>> words = orrivane::cli::Split_Shell_Words(line);
  if (!words || words->empty() || Asks_For_A_Long_List(*words)) return;
  orrivane::cli::Output out(Nowhere());
  orrivane::cli::Command_Context context{out, true};
  const std::optional<std::string> error = orrivane::cli::Run_Command(*words, context);
  if (error && Is_Last_Resort(*error)) orrivane::fuzz::Finding("an unexpected exception: " + *error);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orrivane::fuzz::Guard_Input([&] { Run_Batch_Line(orrivane::fuzz::As_Text(data, size)); });
}
