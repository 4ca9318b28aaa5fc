#include "cli/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "app/text.h"

namespace kelvo::cli {
namespace {

// What a value has against it; empty for a good one.
std::string FaultOf(const Option& option, const std::string& value) {
  if (option.IsNumber()) {
    const auto number = app::WholeNumber<int>(value);
    if (number && *number >= option.lowest && *number <= option.highest) return {};
    return "\"" + value + "\" is no number from " + std::to_string(option.lowest) + " to " +
           std::to_string(option.highest);
  }
  const auto choices = WordsOf(option.choices);
  if (choices.empty() || std::ranges::count(choices, value) > 0) return {};
  return "\"" + value + "\" is none of " + std::string(option.choices);
}

CLI::Option* AddTo(CLI::App& parser, const Option& option) {
  const std::string name(option.name);
  if (option.value.empty()) return parser.add_flag(name)->disable_flag_override();
  return parser.add_option(name)->expected(1)->check(
      [&option](const std::string& value) { return FaultOf(option, value); });
}

// What the parser knows no option for. Behind "--" it is an operand whatever it begins with.
std::vector<std::string> OperandsIn(std::vector<std::string> words, const Command& command) {
  const auto mark = std::ranges::find(words, "--");
  const auto unknown =
      std::find_if(words.begin(), mark, [](const std::string& word) { return word.size() > 1 && word[0] == '-'; });
  if (unknown != mark) throw UsageError("there is no option " + *unknown, &command);
  if (mark != words.end()) words.erase(mark);
  return words;
}

void RequireCount(const Arguments& arguments) {
  const Command& command = *arguments.command;
  const std::size_t count = arguments.operands.size();
  if (count >= command.fewest && count <= command.most) return;
  throw UsageError(count < command.fewest ? "something is missing: " + std::string(command.operands)
                                          : "\"" + arguments.operands[command.most] + "\" is too much",
                   &command);
}

// What contradicts itself, or asks for two things of one stream.
void RequireSense(const Arguments& arguments) {
  for (const Option* option : arguments.command->options) {
    if (!arguments.Has(*option) || !arguments.values.contains(option->excludes)) continue;
    throw UsageError(std::string(option->name) + " contradicts " + std::string(option->excludes), arguments.command);
  }
  if (std::ranges::count(arguments.Inputs(), "-") <= 1) return;
  throw UsageError("standard input can be read once only", arguments.command);
}

void Parse(const std::vector<std::string>& words, Arguments& arguments) {
  CLI::App parser;
  parser.allow_windows_style_options(false);
  parser.set_help_flag(std::string(kHelp.name) + ",-h");
  parser.allow_extras();  // which are the operands: the parser would take one in brackets for a list
  std::vector<std::pair<const Option*, CLI::Option*>> options;
  for (const Option* option : arguments.command->options) options.emplace_back(option, AddTo(parser, *option));
  parser.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
  for (const auto& [option, parsed] : options) {
    if (parsed->count() > 0) arguments.values[option->name] = parsed->results().front();
  }
  arguments.operands = OperandsIn(parser.remaining(), *arguments.command);
}

}  // namespace

UsageError::UsageError(const std::string& what, const Command* command)
    : std::runtime_error(what + "\nTry: kelvo-cli " +
                         (command == nullptr ? "help" : std::string(command->name) + " --help")) {}

std::string Arguments::Text(const Option& option, std::string_view otherwise) const {
  const auto found = values.find(option.name);
  return found == values.end() ? std::string(otherwise) : found->second;
}

std::optional<int> Arguments::Number(const Option& option) const {
  return app::WholeNumber<int>(Text(option));
}

std::span<const std::string> Arguments::Inputs() const {
  const bool has_output = command->writes && (command->fewest > 1 || operands.size() > command->fewest);
  return std::span(operands).first(operands.size() - (has_output ? 1 : 0));
}

std::string Arguments::Output() const {
  return Inputs().size() < operands.size() ? operands.back() : "-";
}

Arguments ReadArguments(const std::vector<std::string>& words) {
  if (words.empty()) throw UsageError("there is nothing to do");
  const std::string& name = words.front();
  Arguments arguments{.command = FindCommand(name == "--help" || name == "-h" ? "help" : name)};
  if (arguments.command == nullptr) throw UsageError("there is no command \"" + name + "\"");
  try {
    Parse(words, arguments);
    RequireCount(arguments);
    RequireSense(arguments);
  } catch (const CLI::CallForHelp&) {
    arguments.help = true;
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what(), arguments.command);
  }
  return arguments;
}

}  // namespace kelvo::cli
