#include "cli/commands.h"

#include <algorithm>
#include <array>
#include <span>

#include "cli/command_error.h"
#include "core/runtime_failure.h"

namespace orrivane::cli {

namespace {

struct Option_Spec {
  std::string_view name;
  bool takes_value;
};

using Command_Handler = void (*)(const Arguments&, Command_Context&);

struct Command_Spec {
  std::string_view name;
  std::string_view usage;  // after "orrivane-cal "
  bool in_help;            // --help lists the usage (--version shares the line of --help)
  std::span<const Option_Spec> options;
  std::size_t least_operands;
  std::size_t most_operands;
  Command_Handler run;
};

constexpr Option_Spec kStyleOption[] = {{"--julian", false}};
constexpr Option_Spec kHolidayOptions[] = {{"--holiday", true}};
constexpr Option_Spec kElapsedOptions[] = {{"--julian", false}, {"--total", false}, {"--units", true}};

constexpr Option_Spec kDueOptions[] = {{"--log", true}, {"--notes", true}};
constexpr Option_Spec kTaskOptions[] = {{"--after", true}, {"--before", true}, {"--start", false}, {"--finish", false}};
constexpr Option_Spec kIcsOptions[] = {{"--notes", true}};

constexpr std::array<Command_Spec, 14> kCommands{{
    // name        usage                                                     in help  options          operands  handler
    {"weekday",   "weekday  [--julian] MONTH DAY YEAR",                      true,  kStyleOption,    3, 3, Run_Weekday},
    {"month",     "month    [--julian] MONTH YEAR",                          true,  kStyleOption,    2, 2, Run_Month},
    {"convert",   "convert  [--julian] MONTH DAY YEAR",                      true,  kStyleOption,    3, 3, Run_Convert},
    {"holidays",  "holidays [--holiday NAME] YEAR [TO_YEAR]",                true,  kHolidayOptions, 1, 2, Run_Holidays},
    {"elapsed",   "elapsed  [--julian] [--total | --units UNITS] FROM TO",   true,  kElapsedOptions, 2, 2, Run_Elapsed},
    {"calc",      "calc     OPERATION A B",                                  true,  {},              3, 3, Run_Calc},
    {"minutes",   "minutes  DATE TIME",                                     true,  {},              2, 2, Run_Minutes},
    {"remaining", "remaining DATE TIME NOW_DATE NOW_TIME",                   true,  {},              4, 4, Run_Remaining},
    {"due",       "due      [--log FILE] [--notes FILE] NOW_DATE NOW_TIME [UNTIL_DATE UNTIL_TIME]",
                                                                             true,  kDueOptions,     2, 4, Run_Due},
    {"tasks",     "tasks    FILE NAME [--after BOUND] [--before BOUND] [--start] [--finish]",
                                                                             true,  kTaskOptions,    2, 2, Run_Tasks},
    {"ics",       "ics      FILE [--notes FILE]",                            true,  kIcsOptions,     1, 1, Run_Ics},
    {"batch",     "batch",                                                   true,  {},              0, 0, Run_Batch},
    {"--help",    "--help | --version",                                      true,  {},              0, 0, Run_Help},
    {"--version", "--help | --version",                                      false, {},              0, 0, Run_Version},
}};

static_assert(std::ranges::all_of(kCommands, [](const Command_Spec& command) { return command.options.size() <= kMostOptions; }),
              "Arguments keeps room for the options of every command");

constexpr std::string_view kProgram = "orrivane-cal";
constexpr std::string_view kHelpHint = "orrivane-cal --help lists the commands.";

std::string Usage_Line(const Command_Spec& command) { return std::string(kProgram) + " " + std::string(command.usage); }

const Command_Spec* Find_Command(std::string_view name) {
  const auto found = std::find_if(kCommands.begin(), kCommands.end(),
                                  [name](const Command_Spec& command) { return command.name == name; });
  return found == kCommands.end() ? nullptr : &*found;
}

[[noreturn]] void Usage_Error(const Command_Spec& command) {
  throw Command_Error("Usage", Usage_Line(command));
}

const Option_Spec* Find_Option(const Command_Spec& command, std::string_view name) {
  const auto found = std::find_if(command.options.begin(), command.options.end(),
                                  [name](const Option_Spec& option) { return option.name == name; });
  return found == command.options.end() ? nullptr : &*found;
}

// Options are the words that name one of the command's options ("--units ymd" or
// "--units=ymd"), up to a "--"; every other word is an operand, so that "-5" is a year. The
// words are the command's name and what follows it; the operands are gathered behind the name.
Arguments Parse_Arguments(const Command_Spec& command, std::vector<std::string_view>& words) {
  constexpr std::size_t kFirstOperand = 1;  // behind the command's name
  Arguments arguments;
  std::size_t operands = 0;
  bool options_end = false;
  for (std::size_t i = kFirstOperand; i < words.size(); ++i) {
    const std::string_view word = words[i];
    if (options_end || !word.starts_with("--")) {
      words[kFirstOperand + operands++] = word;
      continue;
    }
    if (word == "--") {
      options_end = true;
      continue;
    }
    const std::size_t equals = word.find('=');
    const Option_Spec* option = Find_Option(command, word.substr(0, equals));
    if (option == nullptr) Usage_Error(command);
    std::string_view value;
    if (equals != std::string_view::npos) {
      if (!option->takes_value) Usage_Error(command);
      value = word.substr(equals + 1);
    } else if (option->takes_value) {
      if (i + 1 >= words.size()) Usage_Error(command);
      value = words[++i];
    }
    arguments.Give(option->name, value);
  }
  arguments.operands = std::span<const std::string_view>(words.data() + kFirstOperand, operands);
  if (arguments.operands.size() < command.least_operands || arguments.operands.size() > command.most_operands) {
    Usage_Error(command);
  }
  return arguments;
}

void Run_Parsed(std::vector<std::string_view>& words, Command_Context& context) {
  if (words.empty()) {
    throw Command_Error("Usage", std::string(kProgram) + " COMMAND ...; " + std::string(kHelpHint));
  }
  const Command_Spec* command = Find_Command(words.front());
  if (command == nullptr) {
    throw Command_Error("Unknown Command", Quoted(words.front()) + " is no command; " + std::string(kHelpHint));
  }
  const Arguments arguments = Parse_Arguments(*command, words);
  command->run(arguments, context);
}

}  // namespace

bool Arguments::Has(std::string_view option) const { return Value_Of(option).has_value(); }

std::optional<std::string_view> Arguments::Value_Of(std::string_view option) const {
  for (std::size_t i = 0; i < option_count; ++i) {
    if (options[i].first == option) return options[i].second;
  }
  return std::nullopt;
}

void Arguments::Give(std::string_view option, std::string_view value) {
  for (std::size_t i = 0; i < option_count; ++i) {
    if (options[i].first == option) {
      options[i].second = value;  // the value given last counts
      return;
    }
  }
  options[option_count++] = {option, value};
}

std::optional<std::string> Run_Command(const std::vector<std::string>& words, Command_Context& context) {
  std::vector<std::string_view> views(words.begin(), words.end());
  return Run_Command_In_Place(views, context);
}

std::optional<std::string> Run_Command_In_Place(std::vector<std::string_view>& words, Command_Context& context) {
  try {
    Run_Parsed(words, context);
    return std::nullopt;
  } catch (const Command_Error& error) {
    return Error_Line(error.title(), error.text());
  } catch (const RuntimeFailure& failure) {
    // An unhandled failure of the program, told as its message box tells it.
    return Error_Line("Run-time error '" + std::to_string(failure.number()) + "'", failure.description());
  } catch (const std::exception& failure) {
    return Error_Line("Error", failure.what());
  }
}

std::string Usage_Of(std::string_view command) {
  const Command_Spec* found = Find_Command(command);
  return found == nullptr ? std::string() : Usage_Line(*found);
}

void Run_Help(const Arguments&, Command_Context& context) {
  context.out.Line("Usage:");
  for (const Command_Spec& command : kCommands) {
    if (command.in_help) context.out.Line("  " + Usage_Line(command));
  }
}

void Run_Version(const Arguments&, Command_Context& context) {
  context.out.Line(std::string(kProgram) + " " + ORRIVANE_VERSION);
}

}  // namespace orrivane::cli
