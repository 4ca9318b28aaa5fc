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

  // What the command interpreter of Windows is called with: "/C ", the tool, and each argument after a blank. Paths in
  // their 8.3 form need no more. Where a word holds something that the interpreter acts upon, each one is quoted, and
  // so is the whole; a percent sign, which no quote protects, is told as kPercentVariable. An empty word is nothing.
  // Throws std::runtime_error where a word holds a quote, a line end or a zero, which nothing protects.
  std::string InterpreterArguments() const;
};

// What has the value "%" in the environment of the command interpreter.
inline constexpr const char* kPercentVariable = "KELVO_PERCENT";

// The command interpreter of Windows: the first of two fixed places that holds one.
std::optional<std::string> FindCommandInterpreter();

// The name that a tool has on this platform: on Windows "TASS.EXE", elsewhere "tass".
std::filesystem::path ToolName(std::string_view name);

}  // namespace kelvo::c64out
