#include "files/current_file.h"

#include "app/path_text.h"

namespace kelvo::files {
namespace {

constexpr std::string_view kProgramTitle = "Kelvo v1.2 by the Kelvo developers";

}  // namespace

std::string NameOfPath(std::string_view path) {
  constexpr std::string_view kProgram = ".prg";
  std::string name = app::FileNamePart(path);
  if (app::ToLower(name).ends_with(kProgram)) name.resize(name.size() - kProgram.size());
  return name;
}

CurrentFile SetFileParameters(std::string_view path) {
  return {std::string(path), NameOfPath(path)};
}

std::string WindowTitle(const CurrentFile& file) {
  return std::string(kProgramTitle) + " [" + (file.HasFile() ? file.CurrentFileName : "unnamed.kvp") + "]";
}

std::string StatusName(const CurrentFile& file) {
  return file.HasFile() ? file.CurrentFileName : "[unnamed]";
}

}  // namespace kelvo::files
