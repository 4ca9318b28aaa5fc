// A shown screen as an image file.
#pragma once

#include <filesystem>

#include "c64/screen.h"

namespace kelvo::c64 {

// Writes the screen with its border around it: a PPM, or, where this is built with Qt, what the ending of `file` says.
// Throws std::runtime_error.
void WriteImage(const Screen& screen, const std::filesystem::path& file);

}  // namespace kelvo::c64
