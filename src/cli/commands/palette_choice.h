// The palette that a command shows colours in.
#pragma once

#include "cli/commands/commands.h"
#include "files/palette_file.h"

namespace kelvo::cli {

// What --palette names, else the settings. Throws files::PaletteError and app::FileError.
inline files::Palette ChosenPalette(const Arguments& arguments, const app::SettingsStore& settings) {
  return files::LoadPalette(arguments.Text(kPalette, settings.Read(files::kPaletteSetting)));
}

}  // namespace kelvo::cli
