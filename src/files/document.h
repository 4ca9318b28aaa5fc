// The picture that is being edited, with the file it belongs to.
#pragma once

#include "files/current_file.h"
#include "model/picture_image.h"

namespace kelvo::files {

struct Document {
  model::PictureImage picture;
  model::PictureImage kept = picture;  // as it was last loaded, saved or begun
  CurrentFile file;

  bool HasUnsavedWork() const { return picture != kept; }
};

}  // namespace kelvo::files
