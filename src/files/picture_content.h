// What a picture file is by its bytes, whatever it is called.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>

#include "files/picture_format.h"

namespace kelvo::files {

// Bytes that are no picture of a kind that is known.
class UnknownPicture : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A file as its format has it: with a load address where it came without, without what follows the picture, unpacked.
struct Content {
  FormatType type;
  app::Bytes bytes;
};

// Told by size and load address; what no format takes may be a packed Koala picture. Throws UnknownPicture.
Content ContentOf(std::span<const std::uint8_t> bytes);

// The most bytes that any picture file has.
extern const std::size_t kMostPictureBytes;

// Decode() for a file that `type` may or may not take: where it does not, the bytes say what the file is. Throws
// FormatError for `type` where they do not either, and for kByContentType UnknownPicture.
model::PictureImage DecodeAny(FormatType type, std::span<const std::uint8_t> bytes, model::C64Colour background_before,
                              Reading reading);

}  // namespace kelvo::files
