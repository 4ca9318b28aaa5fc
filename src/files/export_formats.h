// The C64 formats that a picture can leave in, and what each of them leaves behind.
#pragma once

#include <array>
#include <string_view>

#include "files/picture_format.h"

namespace kelvo::files {

struct ExportFormat {
  FormatType type;
  std::string_view ending;  // without a dot
  std::string_view lacks;   // told before a file is written
};

inline constexpr std::array<ExportFormat, 5> kExportFormats{{
    {kKoaType, "koa",
     "The background is in the last byte. Kelvo takes it from there when it reads files exactly (File menu)."},
    {kKlaType, "kla",
     "The background is in the last byte. Kelvo takes it from there when it reads files exactly (File menu)."},
    {kVidcom64Type, "vid",
     "Many programs take no background from a Vidcom64 file; Kelvo does when it reads files exactly (File menu)."},
    {kArtStudioType, "ocp", "The border gets the background's colour, because a picture in Kelvo has none."},
    {kPicasso64Type, "p64", "The load address becomes $1800."},
}};

}  // namespace kelvo::files
