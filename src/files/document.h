// The picture that is being edited, with the file it belongs to.
#pragma once

#include "app/bytes.h"
#include "files/current_file.h"
#include "model/picture_image.h"

namespace kelvo::files {

struct Document {
  model::PictureImage picture;
  model::PictureImage kept = picture;  // as it was last loaded, saved or begun
  CurrentFile file;
  app::Bytes on_disk = {};  // what the file held when this program last read or wrote it; empty where that is not known

  bool HasUnsavedWork() const { return picture != kept; }
};

}  // namespace kelvo::files
