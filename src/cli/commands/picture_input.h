// Pictures that commands read.
#pragma once

#include <string>
#include <string_view>

#include "app/bytes.h"
#include "cli/commands/commands.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::cli {

// What an operand is called in messages.
std::string NameOfInput(const std::string& operand);

// Throws app::FileError.
app::Bytes ReadInput(const std::string& operand, std::uintmax_t most);

struct PictureInput {
  std::string_view format;  // as --from names it
  std::size_t size;         // of the file
  model::PictureImage picture;
  bool reads_differently;  // exactly and as documented
};

// The picture in a C64's file, as the editor opens it. Throws app::FileError, and std::runtime_error with the operand's
// name for what is no such picture.
PictureInput DecodePicture(const std::string& operand, const app::Bytes& bytes, const Arguments& arguments,
                           const app::SettingsStore& settings);
PictureInput ReadPicture(const std::string& operand, const Arguments& arguments, const app::SettingsStore& settings);

// An image of another computer, by its name or its first bytes.
bool IsImage(const std::string& operand, const app::Bytes& bytes);

}  // namespace kelvo::cli
