#include "model/picture_image.h"

#include <algorithm>

namespace kelvo::model {

void ClearForLoading(PictureImage& picture) {
  const auto clear = [](auto& bytes) { std::fill(bytes.begin() + 1, bytes.end(), std::uint8_t{255}); };
  clear(picture.Bitmap);
  clear(picture.ScreenMemory);
  clear(picture.ColourMemory);
}

}  // namespace kelvo::model
