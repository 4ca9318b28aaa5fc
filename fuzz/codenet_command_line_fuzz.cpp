// Command lines of the network loader: what the window composes the tool takes or refuses plainly, and nothing that the
// command interpreter acts upon gets through.
#include <stdexcept>

#include "c64out/codenet_form.h"
#include "c64out/tool_command.h"
#include "codenet/arguments.h"
#include "input.h"

namespace kelvo::fuzz {
namespace {

using c64out::CodenetForm;

CodenetForm Form(Input& input) {
  CodenetForm form;
  form.file_type = input.Bit() ? c64out::FileType::kBinary : c64out::FileType::kPrg;
  form.set_destination = input.Bit();
  form.execute = static_cast<c64out::ExecuteChoice>(input.Below(3));
  for (std::string* field : {&form.host, &form.port, &form.destination, &form.execute_address, &form.file}) {
    *field = input.Line();
  }
  return form;
}

void CheckComposed(const CodenetForm& form) {
  const auto composed = c64out::ComposeOptions(form, true);
  std::string joined;
  for (const std::string& word : c64out::CodenetArgumentList(form)) joined += " " + word;
  Require(joined == composed.options, "the list and the text have the same words");
  const auto list = c64out::CodenetArgumentList(form, form.file);
  Require(list.size() == c64out::CodenetArgumentList(form).size(), "a file is one word whatever its name");
  const c64out::CodenetForm trimmed = c64out::WithTrimmedFields(form);
  Require(c64out::CodenetArgumentList(trimmed) == c64out::CodenetArgumentList(form), "trimming is done once");
  c64out::EnabledControls(form);
}

std::uint16_t AddressOf(const std::string& digits) {
  return codenet::ParseC64Address("$" + digits).value_or(0);
}

// The tool understands of the line what the form means by it.
void CheckUnderstood(const CodenetForm& form) {
  const CodenetForm trimmed = c64out::WithTrimmedFields(form);
  const auto list = c64out::CodenetArgumentList(form, form.file);
  try {
    const auto arguments = codenet::ParseArguments(list);
    if (arguments.help) return Require(false, "a form never asks for help");
    Require(arguments.host == trimmed.host && arguments.file == form.file, "host and file arrive as they are");
    const bool is_at = trimmed.file_type == c64out::FileType::kBinary || trimmed.set_destination;
    Require(!is_at || arguments.address == AddressOf(trimmed.destination), "the destination arrives");
    Require(!arguments.execute || *arguments.execute == AddressOf(trimmed.execute_address), "the start arrives");
  } catch (const codenet::UsageError& error) {
    Require(*error.what() != '\0', "a refusal says why");
  }
}

// What is left of a line when each `word` is taken away.
std::string Without(std::string line, const std::string& word) {
  for (std::size_t at = 0; (at = line.find(word, at)) != std::string::npos;) line.erase(at, word.size());
  return line;
}

// The interpreter finds nothing to act upon outside quotes, no end before the end, and one variable alone.
void CheckSpeakable(std::string line) {
  Require(line.find_first_of(std::string_view("\r\n\0", 3)) == std::string::npos, "the line does not end early");
  line = Without(line, "%" + std::string(c64out::kPercentVariable) + "%");
  Require(line.find('%') == std::string::npos, "no other variable is put in");
  if (line.starts_with("/C \"")) {
    Require(line.size() > 5 && line.back() == '"', "the whole is quoted");
    line = line.substr(4, line.size() - 5);
  }
  bool is_quoted = false;
  for (const char c : line) {
    if (c == '"') is_quoted = !is_quoted;
    Require(is_quoted || std::string_view("&|<>^").find(c) == std::string_view::npos, "nothing is acted upon");
  }
  Require(!is_quoted, "each quote ends");
}

void CheckAnyLine(Input& input) {
  std::vector<std::string> words;
  while (!input.IsEmpty()) words.push_back(input.Line());
  try {
    const auto arguments = codenet::ParseArguments(words);
    if (arguments.help) return;
    Require(codenet::IsHostText(arguments.host) && arguments.port != 0, "a line that is taken has host and port");
    Require(arguments.mode != codenet::FileMode::kNone || arguments.execute, "and something to do");
    Require((arguments.mode == codenet::FileMode::kNone) == arguments.file.empty(), "a mode comes with its file");
  } catch (const codenet::UsageError&) {
  }
  if (words.empty()) return;
  const c64out::ToolCommand command{words.front(), {words.begin() + 1, words.end()}};
  try {
    CheckSpeakable(command.InterpreterArguments());
  } catch (const std::runtime_error&) {
  }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  const c64out::CodenetForm form = fuzz::Form(input);
  fuzz::CheckComposed(form);
  fuzz::CheckUnderstood(form);
  fuzz::CheckAnyLine(input);
  return 0;
}
