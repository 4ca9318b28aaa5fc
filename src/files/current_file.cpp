#include "files/current_file.h"

#include "app/path_text.h"
#include "app/text.h"
#include "app/version.h"

namespace kelvo::files {

std::string NameOfPath(const std::filesystem::path& path) {
  constexpr std::string_view kProgram = ".prg";
  std::string name = app::TextFromPath(path.filename());
  if (app::ToLower(name).ends_with(kProgram)) name.resize(name.size() - kProgram.size());
  return name;
}

CurrentFile SetFileParameters(const std::filesystem::path& path) {
  return {path, NameOfPath(path)};
}

std::string WindowTitle(const CurrentFile& file) {
  return "Kelvo " + std::string(app::kVersionWord) + " by the Kelvo developers [" + file.NameOr("unnamed.kvp") + "]";
}

std::string StatusName(const CurrentFile& file) {
  return file.HasFile() ? file.CurrentFileName : "[" + file.NameOr("unnamed") + "]";
}

}  // namespace kelvo::files
