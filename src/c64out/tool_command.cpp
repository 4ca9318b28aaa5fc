#include "c64out/tool_command.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "app/text.h"

namespace kelvo::c64out {
namespace {

constexpr std::array<const char*, 2> kInterpreters{"c:\\winnt\\system32\\CMD.exe", "c:\\windows\\system32\\CMD.exe"};

// What ends a word or means something, and what cannot be said at all.
constexpr std::string_view kActedUpon = " \t,;=&|<>^%()@!'`+[]{}", kUnspeakable("\"\r\n\0", 4);

bool HoldsOneOf(const std::string& word, std::string_view characters) {
  return word.find_first_of(characters) != std::string::npos;
}

void RequireSpeakable(const std::string& word) {
  if (!HoldsOneOf(word, kUnspeakable)) return;
  throw std::runtime_error("\"" + word + "\" holds a character that cannot be given to a tool");
}

// A backslash before the last quote would take it away.
std::string Quoted(const std::string& word) {
  if (word.empty()) return word;
  std::string quoted = "\"";
  for (const char c : word) c == '%' ? quoted.append("%").append(kPercentVariable).append("%") : quoted += c;
  return quoted + (word.back() == '\\' ? "\\\"" : "\"");
}

}  // namespace

std::string ToolCommand::InterpreterArguments() const {
  std::vector<std::string> words{tool};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::for_each(words.begin(), words.end(), RequireSpeakable);
  const bool quotes =
      std::any_of(words.begin(), words.end(), [](const std::string& word) { return HoldsOneOf(word, kActedUpon); });
  std::string line;
  for (const std::string& word : words) line += " " + (quotes ? Quoted(word) : word);
  return quotes ? "/C \"" + line.substr(1) + "\"" : "/C" + line;
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
