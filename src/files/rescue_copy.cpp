#include "files/rescue_copy.h"

#include "app/path_text.h"
#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::files {

std::filesystem::path KeepRescueCopy(const Document& document, const app::ProgramFolders& folders,
                                     const app::Clock& clock) {
  const std::string name = document.file.HasFile() ? document.file.CurrentFileName : "unnamed";
  const std::string stem = name + "_" + app::BackupStamp(clock.Now()) + "_unsaved";
  std::filesystem::path path = folders.Backup() / app::PathFromText(stem + ".kvp");
  for (int number = 2; std::filesystem::exists(path); ++number) {
    path = folders.Backup() / app::PathFromText(stem + "_" + std::to_string(number) + ".kvp");
  }
  model::PictureImage picture = document.picture;
  Sign(picture);
  app::WriteWholeFile(path, Encode(picture));
  return path;
}

}  // namespace kelvo::files
