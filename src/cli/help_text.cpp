#include "cli/help_text.h"

#include <algorithm>

#include "app/version.h"

namespace kelvo::cli {
namespace {

constexpr std::size_t kLineLength = 80;

// `text` broken at blanks, each line but the first behind `indent` blanks.
std::string Wrapped(std::string_view text, std::size_t indent) {
  std::string wrapped;
  std::size_t column = indent;
  for (const std::string_view word : WordsOf(text)) {
    if (column > indent && column + 1 + word.size() > kLineLength) {
      wrapped += "\n" + std::string(indent, ' ');
      column = indent;
    } else if (column > indent) {
      wrapped += ' ';
      ++column;
    }
    wrapped += word;
    column += word.size();
  }
  return wrapped + "\n";
}

std::string NameAndValue(const Option& option) {
  return std::string(option.name) + (option.value.empty() ? "" : " " + std::string(option.value));
}

// What it does, and the values that it takes.
std::string Explained(const Option& option) {
  std::string text(option.help);
  if (option.IsNumber()) text += "; " + std::to_string(option.lowest) + " to " + std::to_string(option.highest);
  if (!option.choices.empty() && option.choices != option.value) text += ": " + std::string(option.choices);
  return text;
}

std::string Row(std::string_view name, std::string_view text, std::size_t width) {
  return "  " + std::string(name) + std::string(width - name.size() + 2, ' ') + Wrapped(text, width + 4);
}

std::vector<const Option*> OptionsAndHelp(const Command& command) {
  std::vector<const Option*> options = command.options;
  options.push_back(&kHelp);
  return options;
}

// The text as troff takes it.
std::string Troff(std::string_view text) {
  std::string escaped;
  for (const char c : text) escaped += c == '-' ? "\\-" : c == '\\' ? "\\e" : std::string(1, c);
  return escaped;
}

std::string ManualOf(const Command& command) {
  std::string page = ".SS " + Troff(UsageOf(command)) + "\n" + "It " + Troff(command.summary) + ".\n";
  if (!command.details.empty()) page += Troff(command.details) + "\n";
  for (const Option* option : command.options) {
    page += ".TP\n.B " + Troff(NameAndValue(*option)) + "\n" + Troff(Explained(*option)) + "\n";
  }
  return page + ".PP\n.EX\nkelvo\\-cli " + Troff(command.example) + "\n.EE\n";
}

}  // namespace

std::string UsageOf(const Command& command) {
  std::string usage = "kelvo-cli " + std::string(command.name);
  if (!command.options.empty()) usage += " [OPTION...]";
  return usage + (command.operands.empty() ? "" : " ") + std::string(command.operands);
}

std::string HelpOnCommands() {
  std::size_t width = 0;
  for (const Command& command : Commands()) width = std::max(width, command.name.size());
  std::string help =
      "Usage: kelvo-cli COMMAND [OPTION...] FILE...\n\n"
      "C64 multicolor pictures at the command line, with the editor's own code.\n\n";
  for (const Command& command : Commands()) help += Row(command.name, command.summary, width);
  return help +
         "\nkelvo-cli COMMAND --help tells more, and kelvo-cli --version which one this is.\n"
         "Exit codes: 0 done, 1 the picture says no, 2 wrong use or a file that cannot be read or written.\n";
}

std::string HelpOn(const Command& command) {
  std::string help = "Usage: " + UsageOf(command) + "\n\n" + "It " + Wrapped(std::string(command.summary) + ".", 0);
  if (!command.details.empty()) help += Wrapped(command.details, 0);
  std::size_t width = 0;
  const auto options = OptionsAndHelp(command);
  for (const Option* option : options) width = std::max(width, NameAndValue(*option).size());
  help += "\nOptions:\n";
  for (const Option* option : options) help += Row(NameAndValue(*option), Explained(*option), width);
  return help + "\nExample:\n  kelvo-cli " + std::string(command.example) + "\n";
}

std::string VersionText() {
  return "kelvo-cli " + std::string(app::kVersion) + "\n";
}

std::string ManualPage() {
  std::string page =
      ".TH KELVO\\-CLI 1 \"\" \"Kelvo " + std::string(app::kVersion) +
      "\"\n.SH NAME\nkelvo\\-cli \\- C64 multicolour pictures at the command line\n.SH SYNOPSIS\n"
      ".B kelvo\\-cli\n.I COMMAND\n.RI [ OPTION ...]\n.RI [ FILE ...]\n.SH DESCRIPTION\n"
      "Reads, converts, compares and draws the pictures of\n.BR kelvo (1),\n"
      "and makes C64 programs and disks of them, with the same bytes as the editor. A file called \\- is "
      "standard input or output. Several files are worked on at the same time.\n.SH COMMANDS\n";
  for (const Command& command : Commands()) page += ManualOf(command);
  return page +
         ".SH EXIT STATUS\n0 done, 1 the picture says no, 2 wrong use or a file that cannot be read or written. "
         "Nothing "
         "is written when something fails.\n.SH SEE ALSO\n.BR kelvo (1),\n.BR 64tass (1),\n.BR c1541 (1)\n";
}

}  // namespace kelvo::cli
