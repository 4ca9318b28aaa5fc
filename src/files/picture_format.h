// The picture formats, as bytes: no file, no window.
//
// All are C64 program files: a load address of two bytes, low byte first, then blocks of memory. The own format (.kvp)
// is Vidcom64's layout with a signature and the background colour in the spare bytes behind the screen block; Koala's
// is that of Koala Painter for the C64. A new format is a row of the table.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/bytes.h"
#include "model/picture_image.h"

namespace kelvo::files {

// How a file of one type is read. Block offsets count from the byte after the load address; the background's position
// counts from the start of the file, on purpose: for Koala it therefore names the colour byte of cell 999.
struct PictureFormat {
  std::string_view caption, patterns;  // as a file dialog shows them, "*.a *.b"; empty for the general row
  std::string_view size_message;       // shown when a file has another size; empty: such a load just fails
  std::size_t file_size, other_size;
  std::size_t colour_at, screen_at, bitmap_at;
  std::optional<std::size_t> background_at;
  // What only the exact reading, and writing, go by: the background's own place, and a border's.
  std::optional<std::size_t> true_background_at = std::nullopt, border_at = std::nullopt;
  std::uint16_t load_address = 0x5800;

  constexpr bool Takes(std::uintmax_t size) const { return size == file_size || size == other_size; }
};

// Format types are the positions of the open dialog's filters, counted from 1. Any other number is the general row: a
// file of 10050 bytes in the own layout.
using FormatType = int;
inline constexpr FormatType kOwnType = 1, kVidcom64Type = 2, kKoaType = 3, kKlaType = 4, kGeneralType = 0;
// What the last filter stands for: a file whose bytes say what it is (picture_content.h), and what they may say
// besides. These are always read exactly.
inline constexpr FormatType kByContentType = 5, kArtStudioType = 6, kPicasso64Type = 7, kDrazPaintType = 8;

const PictureFormat& FormatOf(FormatType type);

// The formats that a dialog offers, by type from kOwnType to kByContentType.
std::span<const PictureFormat> OfferedFormats();

// The type of a file that no dialog chose: by extension (.kvp, .lmp, .vid, .koa, .kla, and those of kByContentType),
// else by size.
FormatType TypeOfFile(std::string_view path, std::uintmax_t size);

// `chosen` where it takes a file of `size` bytes, as kByContentType always does; else the type that the file is by its
// name and size. `chosen` too where no type takes it.
FormatType FittingType(FormatType chosen, std::string_view path, std::uintmax_t size);

// A file of a size that its type does not take. The message is the type's own, or one that tells the sizes.
class FormatError : public std::runtime_error {
 public:
  FormatError(const PictureFormat& format, std::uintmax_t size);

  // The size that is right and the one that the file has, in English.
  const std::string& Sizes() const { return sizes_; }

 private:
  std::string sizes_;
};

// As documented, the last bitmap byte is never read, on purpose, and is 255 after reading; so is the last spare byte of
// the other blocks. The exact reading takes them, and the background from its true place.
enum class Reading { kDocumented, kExact };

// The picture in `bytes`; the background is `background_before` where the file carries none. Throws FormatError when
// the type does not take that many bytes.
model::PictureImage Decode(const PictureFormat& format, std::span<const std::uint8_t> bytes,
                           model::C64Colour background_before, Reading reading = Reading::kDocumented);

// Whether the two readings of the same bytes show different pictures: some pixel has another colour.
bool ReadsDifferently(const PictureFormat& format, std::span<const std::uint8_t> bytes,
                      model::C64Colour background_before);

// Puts the signature KELVOED (in screen codes) and the background colour into the spare screen bytes 1017..1024.
void Sign(model::PictureImage& picture);

// Whether a file of the own size carries that signature.
bool IsSigned(std::span<const std::uint8_t> bytes);

// The 10050 bytes of the own format, the spare screen bytes as they stand.
app::Bytes Encode(const model::PictureImage& picture);

// A file of another format (not kByContentType), from which the exact reading takes the same picture: the blocks, the
// background at its true place, the border in the same colour, the rest 0.
app::Bytes EncodeAs(const PictureFormat& format, const model::PictureImage& picture);

}  // namespace kelvo::files
