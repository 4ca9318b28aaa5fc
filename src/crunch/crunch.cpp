#include "crunch/crunch.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "crunch/parse.h"
#include "crunch/section.h"

namespace kelvo::crunch {
namespace {

using Bytes = std::vector<std::uint8_t>;
using BytesView = std::span<const std::uint8_t>;

constexpr int kPlain = 0, kPicture = 1, kPictureProgram = 2, kColoursInBytes = 64, kInColumns = 128;

constexpr std::size_t kBitmap = 8000, kCells = 1000, kColours = kBitmap + kCells;
constexpr std::size_t kPictureBytes = kColours + kCells + 1, kLoadAddress = 2, kMostViewerCode = 6000;

// What the ways that a C64 needs code for have to save: nibbles, and a bitmap that is to be turned.
constexpr int kBitsForNibbles = 8 * 26, kBitsForTurning = 8 * 80;

// The bytes in front of the picture in a file of `layout`.
std::size_t StartOf(int layout) {
  return layout == kPictureProgram ? kLoadAddress : 0;
}

int LayoutOf(BytesView bytes) {
  const bool picture = bytes.size() == kPictureBytes;
  const std::size_t least = kLoadAddress + kPictureBytes;
  if (!picture && (bytes.size() < least || bytes.size() > least + kMostViewerCode)) return kPlain;
  return picture ? kPicture : kPictureProgram;
}

// The place in columns of byte `at` of a bitmap.
std::size_t PlaceInColumns(std::size_t at) {
  const std::size_t cell = at / 8;
  return 200 * (cell % 40) + 8 * (cell / 40) + at % 8;
}

Bytes ToColumns(BytesView bitmap) {
  Bytes columns(bitmap.size());
  for (std::size_t at = 0; at < bitmap.size(); ++at) columns[PlaceInColumns(at)] = bitmap[at];
  return columns;
}

Bytes FromColumns(BytesView columns) {
  if (columns.size() != kBitmap) throw std::runtime_error("the packed data is damaged: the bitmap has another size");
  Bytes bitmap(columns.size());
  for (std::size_t at = 0; at < columns.size(); ++at) bitmap[at] = columns[PlaceInColumns(at)];
  return bitmap;
}

void Append(Bytes& bytes, BytesView more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

Effort EffortOf(int level) {
  if (level < kFirstLevel || level > kLastLevel) {
    throw std::runtime_error("the level is " + std::to_string(level) + ", it must be from 1 to 9");
  }
  constexpr int kNear = 1 << 13, kFar = 1 << 15;  // the window of a bitmap, and more for longer files
  constexpr std::array<Effort, 9> kEfforts{{{1, 1, 256},
                                            {1, 1, 1024},
                                            {1, 1, kNear},
                                            {3, 1, kNear},
                                            {6, 2, kNear},
                                            {12, 5, kNear},
                                            {16, 8, kFar},
                                            {20, 16, kFar},
                                            {30, 40, kFar}}};
  return kEfforts[static_cast<std::size_t>(level - kFirstLevel)];
}

void Write(BytesView bytes, Literals literals, const Parse& parse, BitWriter& writer) {
  WriteSection(bytes, parse.tokens, literals, parse.code, writer);
}

void Write(BytesView bytes, Literals literals, const Effort& effort, BitWriter& writer) {
  Write(bytes, literals, FindTokens(bytes, literals, effort), writer);
}

Effort Quick(const Effort& effort) {
  return {std::min(effort.passes, 3), 1, effort.window};
}

// A way to pack a section of which there are two, and what a quick look finds of it.
struct Way {
  BytesView bytes;
  Literals literals;
  Parse quick;
};

Way LookAt(BytesView bytes, Literals literals, const Effort& effort) {
  return {bytes, literals, FindTokens(bytes, literals, Quick(effort))};
}

// Whether `one` is shorter by more than `margin` bits.
bool IsShorter(const Way& one, const Way& other, int margin) {
  return one.quick.bits + margin < other.quick.bits;
}

void Write(const Way& way, const Effort& effort, BitWriter& writer) {
  if (Quick(effort) == effort) return Write(way.bytes, way.literals, way.quick, writer);
  Write(way.bytes, way.literals, effort, writer);
}

Way WayOfColours(BytesView colours, const Effort& effort) {
  Way bytes = LookAt(colours, Literals::kBytes, effort);
  if (std::any_of(colours.begin(), colours.end(), [](std::uint8_t byte) { return byte > 15; })) return bytes;
  Way nibbles = LookAt(colours, Literals::kNibbles, effort);
  return IsShorter(nibbles, bytes, kBitsForNibbles) ? nibbles : bytes;
}

void WritePicture(int layout, BytesView picture, const Effort& effort, BitWriter& writer) {
  const BytesView bitmap = picture.first(kBitmap);
  const Bytes turned = ToColumns(bitmap);
  const Way rows = LookAt(bitmap, Literals::kBytes, effort), columns = LookAt(turned, Literals::kBytes, effort);
  const bool in_columns = IsShorter(columns, rows, kBitsForTurning);
  const Way colours = WayOfColours(picture.subspan(kColours, kCells), effort);
  const bool in_bytes = colours.literals == Literals::kBytes;
  writer.PutByte(layout + (in_columns ? kInColumns : 0) + (in_bytes ? kColoursInBytes : 0));
  Write(in_columns ? columns : rows, effort, writer);
  Write(picture.subspan(kBitmap, kCells), Literals::kBytes, effort, writer);
  Write(colours, effort, writer);
}

}  // namespace

std::vector<std::uint8_t> Crunch(BytesView bytes, int level) {
  const Effort effort = EffortOf(level);
  if (bytes.size() > kMostBytesToCrunch) {
    throw std::runtime_error("there are " + std::to_string(bytes.size()) + " bytes to pack, the most are " +
                             std::to_string(kMostBytesToCrunch));
  }
  const int layout = LayoutOf(bytes);
  BitWriter writer;
  if (layout == kPlain) {
    writer.PutByte(layout);
    Write(bytes, Literals::kBytes, effort, writer);
    return writer.Bytes();
  }
  const BytesView picture = bytes.subspan(StartOf(layout));
  Bytes rest(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(StartOf(layout)));
  Append(rest, picture.subspan(kColours + kCells));
  WritePicture(layout, picture, effort, writer);
  Write(rest, Literals::kBytes, effort, writer);
  return writer.Bytes();
}

std::vector<std::uint8_t> Decrunch(BytesView packed) {
  BitReader reader(packed);
  const int first = reader.GetByte(), layout = first % kColoursInBytes;
  if (layout > kPictureProgram || (layout == kPlain && first != kPlain)) {
    throw std::runtime_error("this is no packed data");
  }
  Bytes picture;
  if (layout != kPlain) {
    const Bytes bitmap = ReadSection(Literals::kBytes, kBitmap, reader);
    Append(picture, (first & kInColumns) == 0 ? bitmap : FromColumns(bitmap));
    Append(picture, ReadSection(Literals::kBytes, kCells, reader));
    Append(picture,
           ReadSection((first & kColoursInBytes) == 0 ? Literals::kNibbles : Literals::kBytes, kCells, reader));
  }
  const Bytes rest = ReadSection(Literals::kBytes, kMostBytesToCrunch - picture.size(), reader);
  if (!reader.AtEnd()) throw std::runtime_error("the packed data is damaged: bytes stand behind its end");
  const std::size_t start = std::min(StartOf(layout), rest.size());
  Bytes bytes(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(start));
  Append(bytes, picture);
  Append(bytes, BytesView(rest).subspan(start));
  return bytes;
}

}  // namespace kelvo::crunch
