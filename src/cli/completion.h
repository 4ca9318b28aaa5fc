// Completion of commands, options and their values by a shell, made from the table of commands.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::cli {

// The script for `shell`, which is "bash" or "zsh"; empty for any other.
std::string CompletionFor(std::string_view shell);

}  // namespace kelvo::cli
