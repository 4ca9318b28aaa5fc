// The command line of kelvo-cli, read.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command_table.h"

namespace kelvo::cli {

// A command line that makes no sense. The message says what is wrong, and where to read more.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const std::string& what, const Command* command = nullptr);
};

struct Arguments {
  const Command* command = nullptr;
  bool help = false;                    // nothing else counts then
  std::vector<std::string> operands{};  // as many as the command takes; bytes as they came, in any encoding
  std::map<std::string_view, std::string> values{};  // by the names of the options that were given

  bool Has(const Option& option) const { return values.contains(option.name); }
  std::string Text(const Option& option, std::string_view otherwise = {}) const;
  std::optional<int> Number(const Option& option) const;

  // The operands that are read, and the one that is written: "-" where it may be left out and is.
  std::span<const std::string> Inputs() const;
  std::string Output() const;
};

// `words` without the program's own name, a command first. Behind "--" every word is an operand, whatever it begins
// with. Throws UsageError.
Arguments ReadArguments(const std::vector<std::string>& words);

}  // namespace kelvo::cli
