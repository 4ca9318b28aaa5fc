// Command lines of kelvo-cli: what is taken is what the table allows, and means the same when it is written out again.
#include <algorithm>

#include "cli/arguments.h"
#include "cli/json_text.h"
#include "input.h"

namespace kelvo::fuzz {
namespace {

using cli::Arguments;

std::vector<std::string> Words(Input& input) {
  std::vector<std::string> words;
  const auto commands = cli::Commands();
  if (input.Bit()) {
    words.emplace_back(commands[static_cast<std::size_t>(input.Below(static_cast<int>(commands.size())))].name);
  }
  while (!input.IsEmpty()) words.push_back(input.Line());
  return words;
}

std::vector<std::string> WrittenOut(const Arguments& arguments) {
  std::vector<std::string> words{std::string(arguments.command->name)};
  for (const cli::Option* option : arguments.command->options) {
    if (!arguments.Has(*option)) continue;
    words.emplace_back(option->name);
    if (!option->value.empty()) words.push_back(arguments.Text(*option));
  }
  words.emplace_back("--");
  words.insert(words.end(), arguments.operands.begin(), arguments.operands.end());
  return words;
}

void CheckAllowed(const Arguments& arguments) {
  const cli::Command& command = *arguments.command;
  const std::size_t count = arguments.operands.size();
  Require(count >= command.fewest && count <= command.most, "there are as many operands as the command takes");
  Require(arguments.Inputs().size() + (arguments.Output() == "-" ? 0 : 1) <= count, "each operand is read or written");
  std::size_t known = 0;
  for (const cli::Option* option : command.options) {
    if (!arguments.Has(*option)) continue;
    ++known;
    const auto number = arguments.Number(*option);
    Require(!option->IsNumber() || (number && *number >= option->lowest && *number <= option->highest),
            "numbers are in range");
    const auto choices = cli::WordsOf(option->choices);
    Require(choices.empty() || std::ranges::count(choices, arguments.Text(*option)) > 0,
            "a choice is one that there is");
    Require(!arguments.values.contains(option->excludes), "nothing contradicts");
  }
  Require(known == arguments.values.size(), "all options are the command's");
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const std::vector<std::string> words = fuzz::Words(input);
  try {
    const cli::Arguments arguments = cli::ReadArguments(words);
    if (arguments.help) return 0;
    fuzz::CheckAllowed(arguments);
    const cli::Arguments again = cli::ReadArguments(fuzz::WrittenOut(arguments));
    fuzz::Require(again.operands == arguments.operands && again.values == arguments.values, "it means the same again");
  } catch (const cli::UsageError& error) {
    fuzz::Require(std::string(error.what()).find("\nTry: kelvo-cli ") > 0,
                  "a refusal says why, and where to read more");
  }
  for (const std::string& word : words) {
    const std::string json = cli::JsonText(word);
    fuzz::Require(std::ranges::all_of(json, [](char c) { return c >= ' ' && c <= '~'; }), "JSON is plain");
  }
  return 0;
}
