// Which palette is shown: one that is built in, or a palette file of VICE.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "app/settings_store.h"
#include "model/palette.h"

namespace kelvo::files {

// The name of a built-in palette, or the path of a .vpl file.
inline constexpr app::Setting kPaletteSetting{"Settings", "Palette", "Kelvo"};

class PaletteError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Palette {
  std::string name;  // of a file without folder and ending
  model::SurfaceColours colours;
};

// The palette in the text of a .vpl file: the first sixteen lines of two hexadecimal digits each for red, green and
// blue; what follows on a line, and lines that begin with #, are passed over. Throws PaletteError.
model::SurfaceColours ParseVpl(std::string_view text);

// What the setting's value stands for. Throws PaletteError, and app::FileError for a file that cannot be read.
Palette LoadPalette(const std::string& setting);

}  // namespace kelvo::files
