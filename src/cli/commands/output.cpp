#include "cli/commands/output.h"

#include <set>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "cli/commands/picture_formats.h"
#include "cli/standard_streams.h"

namespace kelvo::cli {
namespace {

namespace fs = std::filesystem;

std::string NameOfOutput(const std::string& operand) {
  return operand == "-" ? "standard output" : operand;
}

bool IsFolder(const std::string& operand) {
  std::error_code ignored;
  return operand != "-" && fs::is_directory(app::PathFromText(operand), ignored);
}

// The same for all names of a file.
fs::path WhereItIs(const std::string& operand) {
  std::error_code error;
  const fs::path path = app::PathFromText(operand), place = fs::weakly_canonical(path, error);
  return error ? path : place;
}

std::vector<std::string> OutputsInFolder(const Arguments& arguments, std::string_view ending) {
  std::vector<std::string> outputs;
  const fs::path folder = app::PathFromText(arguments.Output());
  std::set<std::string> names;
  for (const std::string& input : arguments.Inputs()) {
    if (input == "-") throw UsageError("standard input has no name in a folder", arguments.command);
    const std::string name = app::TextFromPath(app::PathFromText(input).stem()) + "." + std::string(ending);
    if (!names.insert(name).second) throw UsageError("two pictures would become " + name, arguments.command);
    outputs.push_back(app::TextFromPath(folder / app::PathFromText(name)));
  }
  return outputs;
}

}  // namespace

std::string FormatToWrite(const Arguments& arguments) {
  const std::string output = arguments.Output();
  std::string format = arguments.Text(kTo, FormatByEnding(output));
  if (!format.empty()) return format;
  if (IsFolder(output)) {
    throw UsageError(output + ": this is a folder; --to says what is to be in it", arguments.command);
  }
  throw UsageError(NameOfOutput(output) + ": its name tells no format; --to does", arguments.command);
}

std::vector<std::string> OutputsFor(const Arguments& arguments, std::string_view ending) {
  if (IsFolder(arguments.Output())) return OutputsInFolder(arguments, ending);
  if (arguments.Inputs().size() == 1) return {arguments.Output()};
  throw UsageError(arguments.Output() + ": several pictures go into a folder that is there", arguments.command);
}

void RequireOtherThanInputs(const Arguments& arguments, const std::vector<std::string>& outputs) {
  std::set<fs::path> inputs;
  for (const std::string& input : arguments.Inputs()) inputs.insert(WhereItIs(input));
  for (const std::string& output : outputs) {
    if (output == "-" || !inputs.contains(WhereItIs(output))) continue;
    throw UsageError(output + ": this would be read and written", arguments.command);
  }
}

void WriteOutput(const std::string& output, std::span<const std::uint8_t> bytes) {
  if (output == "-") return WriteStandardOutput(bytes);
  const fs::path file = app::PathFromText(output);
  std::error_code ignored;
  const fs::file_status status = fs::status(file, ignored);
  if (fs::exists(status) && !fs::is_directory(status) && !fs::is_regular_file(status)) {
    throw app::FileError(output + ": this is not an ordinary file; \"-\" is standard output");
  }
  app::WriteWholeFile(file, bytes, app::Flush::kLater);
}

void WriteOutput(const std::string& output, std::string_view text) {
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  WriteOutput(output, bytes);
}

void WriteOutputs(const std::vector<std::string>& outputs, const std::vector<app::Bytes>& files) {
  std::vector<fs::path> made;
  std::error_code ignored;
  try {
    for (std::size_t i = 0; i < outputs.size(); ++i) {
      const bool is_new = !fs::exists(app::PathFromText(outputs[i]), ignored);
      WriteOutput(outputs[i], files[i]);
      if (is_new) made.push_back(app::PathFromText(outputs[i]));
    }
  } catch (const app::FileError&) {
    for (const fs::path& file : made) fs::remove(file, ignored);
    throw;
  }
}

}  // namespace kelvo::cli
