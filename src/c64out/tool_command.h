// An external tool with its arguments, as a value.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo::c64out {

struct ToolCommand {
  std::string tool;  // its path
  std::vector<std::string> arguments;

  bool operator==(const ToolCommand&) const = default;

  // What the command interpreter of Windows is called with: "/C ", the tool, and each argument after a blank. Nothing
  // is quoted, on purpose: paths come in their 8.3 form. Throws std::runtime_error where the tool or an argument holds
  // a character that would make the interpreter run something else.
  std::string InterpreterArguments() const;

  // The whole command line on Windows, given the interpreter's path.
  std::string WindowsCommandLine(const std::string& interpreter) const;
};

// The command interpreter of Windows: the first of two fixed places that holds one.
std::optional<std::string> FindCommandInterpreter();

// The name that a tool has on this platform: on Windows "TASS.EXE", elsewhere "tass".
std::filesystem::path ToolName(std::string_view name);

}  // namespace kelvo::c64out
