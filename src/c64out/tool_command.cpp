#include "c64out/tool_command.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "app/text.h"

namespace kelvo::c64out {
namespace {

constexpr std::array<const char*, 2> kInterpreters{"c:\\winnt\\system32\\CMD.exe", "c:\\windows\\system32\\CMD.exe"};

// Everything that the interpreter acts upon by itself, and the sign that ends a line early.
constexpr std::string_view kSpecial("&|<>^%\"\r\n\0", 10);

void RequirePlain(const std::string& text) {
  if (text.find_first_of(kSpecial) == std::string::npos) return;
  throw std::runtime_error("\"" + text + "\" holds a character that cannot be given to a tool");
}

}  // namespace

std::string ToolCommand::InterpreterArguments() const {
  std::string line = "/C " + tool;
  for (const std::string& argument : arguments) line += " " + argument;
  RequirePlain(line);
  return line;
}

std::string ToolCommand::WindowsCommandLine(const std::string& interpreter) const {
  return interpreter + " " + InterpreterArguments();
}

std::optional<std::string> FindCommandInterpreter() {
  const auto* found = std::find_if(kInterpreters.begin(), kInterpreters.end(), [](const char* path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
  });
  return found == kInterpreters.end() ? std::nullopt : std::optional<std::string>(*found);
}

std::filesystem::path ToolName(std::string_view name) {
#ifdef _WIN32
  return app::ToUpper(name) + ".EXE";
#else
  return app::ToLower(name);
#endif
}

}  // namespace kelvo::c64out
