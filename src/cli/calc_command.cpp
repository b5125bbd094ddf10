// calc: the decimal text arithmetic of the Find Time Length window on numbers of up to 100 digits.
#include <array>
#include <string>
#include <string_view>

#include "cli/command_error.h"
#include "cli/commands.h"
#include "core/value.h"
#include "elapsed/decimal_text.h"

namespace orrivane::cli {

namespace {

// The operations by the names the tool takes, with the names Calculate takes.
struct Operation_Row {
  std::string_view name;
  const char* calculate_name;
};
constexpr std::array<Operation_Row, 6> kOperations{{
    {"Add", "Add"},
    {"Subtract", "Subtract"},
    {"Multiply", "Multiply"},
    {"Compare", "Compare"},
    {"Divide", "Divide -integer"},
    {"Remainder", "Remainder"},
}};

const char* Calculate_Name(std::string_view name) {
  for (const Operation_Row& row : kOperations) {
    if (row.name == name) return row.calculate_name;
  }
  throw Command_Error("Unknown Operation",
                      Quoted(name) + " is none of Add, Subtract, Multiply, Compare, Divide, Remainder.");
}

}  // namespace

void Run_Calc(const Arguments& arguments, Command_Context& context) {
  const char* operation = Calculate_Name(arguments.operands[0]);
  context.out.Line(elapsed::Calculate(operation, Value(arguments.operands[1]), Value(arguments.operands[2])));
}

}  // namespace orrivane::cli
