#include "files/rescue_copy.h"

#include "files/backups.h"
#include "files/picture_format.h"

namespace kelvo::files {

std::filesystem::path KeepRescueCopy(const Document& document, const app::ProgramFolders& folders,
                                     const app::Clock& clock) {
  model::PictureImage picture = document.picture;
  Sign(picture);
  const std::string name = document.file.HasFile() ? document.file.CurrentFileName : "unnamed";
  return Backups(folders, clock).Keep(Encode(picture), name, "_unsaved", ".kvp");
}

}  // namespace kelvo::files
