// The formats by the names that options and endings have for them.
#pragma once

#include <optional>
#include <string_view>

#include "app/bytes.h"
#include "files/palette_file.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::cli {

// Nothing for a name that is no C64 format.
std::optional<files::FormatType> TypeNamed(std::string_view format);

// The name of a file's format; what has a Koala picture in no size of Koala's is packed.
std::string_view FormatNameOf(files::FormatType type, std::size_t size);

// The format that a file's ending stands for, such as "ocp" for .art; empty for none that is written.
std::string_view FormatByEnding(std::string_view file);

// The file of `format`, which is one that --to takes, as the editor saves or exports it.
app::Bytes EncodedAs(std::string_view format, const model::PictureImage& picture, const files::Palette& palette);

}  // namespace kelvo::cli
