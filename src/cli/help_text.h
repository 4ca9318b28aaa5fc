// The texts that tell how kelvo-cli is used, made from the table of commands.
#pragma once

#include <string>

#include "cli/command_table.h"

namespace kelvo::cli {

// All commands, a line each.
std::string HelpOnCommands();

// One command: its usage, its options, an example.
std::string HelpOn(const Command& command);

// "kelvo-cli render [OPTION...] IN OUT.png"
std::string UsageOf(const Command& command);

// What "kelvo-cli --version" prints.
std::string VersionText();

// The page that `man kelvo-cli` shows.
std::string ManualPage();

}  // namespace kelvo::cli
