#include "cli/completion.h"

#include "cli/command_table.h"

namespace kelvo::cli {
namespace {

std::string CommandNames() {
  std::string names;
  for (const Command& command : Commands()) names += (names.empty() ? "" : " ") + std::string(command.name);
  return names;
}

// "    convert) words='--from --to' ;;" for each command.
std::string BashOptions() {
  std::string cases;
  for (const Command& command : Commands()) {
    cases += "    " + std::string(command.name) + ") words='" + std::string(kHelp.name);
    for (const Option* option : command.options) cases += " " + std::string(option->name);
    cases += "' ;;\n";
  }
  return cases;
}

// Options of one name may take different values in different commands.
std::string BashValues() {
  std::string cases;
  for (const Command& command : Commands()) {
    for (const Option* option : command.options) {
      if (option->choices.empty()) continue;
      cases += "    " + std::string(command.name) + ":" + std::string(option->name) + ") COMPREPLY=($(compgen -W '" +
               std::string(option->choices) + "' -- \"$word\")); return ;;\n";
    }
  }
  return cases;
}

std::string Bash() {
  return "# Completion of kelvo-cli for bash.\n"
         "_kelvo_cli() {\n"
         "  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words=\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ] || [ \"$before\" = help ]; then\n"
         "    COMPREPLY=($(compgen -W '" +
         CommandNames() +
         "' -- \"$word\"))\n"
         "    return\n"
         "  fi\n"
         "  case ${COMP_WORDS[1]}:$before in\n" +
         BashValues() +
         "    completion:completion) COMPREPLY=($(compgen -W 'bash zsh' -- \"$word\")); return ;;\n"
         "  esac\n"
         "  case ${COMP_WORDS[1]} in\n" +
         BashOptions() +
         "  esac\n"
         "  [ \"${word#-}\" = \"$word\" ] || COMPREPLY=($(compgen -W \"$words\" -- \"$word\"))\n"
         "}\n"
         "complete -o default -F _kelvo_cli kelvo-cli\n";
}

// A text within single quotes and brackets.
std::string ZshText(std::string_view text) {
  std::string quoted;
  for (const char c : text) {
    quoted += c == '\'' ? "'\\''" : c == ':' || c == '[' || c == ']' ? std::string{'\\', c} : std::string(1, c);
  }
  return quoted;
}

std::string ZshOption(const Option& option) {
  std::string row = " '" + std::string(option.name) + "[" + ZshText(option.help) + "]";
  if (option.value.empty()) return row + "'";
  return row + ":" + ZshText(option.value) + ":" +
         (option.choices.empty() ? "_files" : "(" + std::string(option.choices) + ")") + "'";
}

std::string ZshCommands() {
  std::string rows;
  for (const Command& command : Commands()) {
    rows += "    '" + std::string(command.name) + ":" + ZshText(command.summary) + "'\n";
  }
  return rows;
}

std::string ZshCases() {
  std::string cases;
  for (const Command& command : Commands()) {
    if (command.name == "help") continue;  // its operand is a command
    cases += "    " + std::string(command.name) + ") _arguments" + ZshOption(kHelp);
    for (const Option* option : command.options) cases += ZshOption(*option);
    cases += " '*:file:_files' ;;\n";
  }
  return cases;
}

std::string Zsh() {
  return "#compdef kelvo-cli\n"
         "_kelvo_cli() {\n"
         "  local -a commands=(\n" +
         ZshCommands() +
         "  )\n"
         "  if (( CURRENT == 2 )); then\n"
         "    _describe command commands\n"
         "    return\n"
         "  fi\n"
         "  local command=$words[2]\n"
         "  shift words\n"
         "  (( CURRENT-- ))\n"
         "  case $command in\n"
         "    help) _describe command commands ;;\n" +
         ZshCases() +
         "  esac\n"
         "}\n"
         "_kelvo_cli \"$@\"\n";
}

}  // namespace

std::string CompletionFor(std::string_view shell) {
  if (shell == "bash") return Bash();
  return shell == "zsh" ? Zsh() : std::string();
}

}  // namespace kelvo::cli
