#include "c64out/crunch.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>
#include <string>

#include "c64out/crunch_parse.h"
#include "c64out/crunch_section.h"

namespace kelvo::c64out {
namespace {

using Bytes = std::vector<std::uint8_t>;
using BytesView = std::span<const std::uint8_t>;

enum Layout { kPlain, kPicture, kPictureProgram };

constexpr std::size_t kBitmap = 8000, kCells = 1000, kPictureBytes = kBitmap + 2 * kCells + 1, kLoadAddress = 2;
constexpr std::size_t kMostViewerCode = 1024;
constexpr int kInColumns = 128;

Layout LayoutOf(BytesView bytes) {
  if (bytes.size() == kPictureBytes) return kPicture;
  const std::size_t least = kLoadAddress + kPictureBytes;
  return bytes.size() >= least && bytes.size() <= least + kMostViewerCode ? kPictureProgram : kPlain;
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

Effort EffortOf(int level) {
  if (level < kFirstLevel || level > kLastLevel) {
    throw std::runtime_error("the level is " + std::to_string(level) + ", it must be from 1 to 9");
  }
  constexpr std::array<Effort, 9> kEfforts{{{1, 1, 256},
                                            {2, 1, 1024},
                                            {2, 1, kMostOffset},
                                            {3, 2, kMostOffset},
                                            {5, 2, kMostOffset},
                                            {8, 2, kMostOffset},
                                            {12, 3, kMostOffset},
                                            {20, 4, kMostOffset},
                                            {40, 6, kMostOffset}}};
  return kEfforts[static_cast<std::size_t>(level - kFirstLevel)];
}

// A way to pack a section: how its literals are told, and its bytes in the order that they are packed in.
struct Attempt {
  int kind;
  Bytes bytes;
};

void WriteSection(const Attempt& attempt, const Effort& effort, BitWriter& writer) {
  const auto literals = static_cast<Literals>(attempt.kind & ~kInColumns);
  writer.PutByte(attempt.kind);
  SectionWriter section(attempt.bytes, literals, writer);
  for (const Token& token : FindTokens(attempt.bytes, literals, effort)) section.Put(token);
  section.End();
}

// Writes the attempt that packs best.
void WriteBest(const std::vector<Attempt>& attempts, const Effort& effort, BitWriter& writer) {
  const Effort quick{std::min(effort.passes, 2), 1, effort.window};
  const Attempt* best = nullptr;
  std::size_t best_size = 0;
  for (const Attempt& attempt : attempts) {
    BitWriter trial;
    WriteSection(attempt, quick, trial);
    if (best == nullptr || trial.Bytes().size() < best_size) {
      best = &attempt;
      best_size = trial.Bytes().size();
    }
  }
  WriteSection(*best, effort, writer);
}

std::vector<Attempt> AttemptsFor(BytesView bytes, std::initializer_list<Literals> ways) {
  const bool only_low = std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte < 16; });
  std::vector<Attempt> attempts;
  for (const Literals literals : ways) {
    if (literals == Literals::kNibbles && !only_low) continue;
    attempts.push_back({static_cast<int>(literals), Bytes(bytes.begin(), bytes.end())});
  }
  return attempts;
}

std::vector<Attempt> AttemptsForBitmap(BytesView bitmap) {
  std::vector<Attempt> attempts = AttemptsFor(bitmap, {Literals::kPixels, Literals::kRaw});
  attempts.push_back({static_cast<int>(Literals::kPixels) + kInColumns, ToColumns(bitmap)});
  return attempts;
}

Bytes ReadNextSection(std::size_t most, BitReader& reader) {
  const int kind = reader.GetByte(), literals = kind & ~kInColumns;
  if (literals > static_cast<int>(Literals::kRaw)) {
    throw std::runtime_error("the packed data is damaged: there is no such kind of section");
  }
  Bytes bytes = ReadSection(static_cast<Literals>(literals), most, reader);
  return kind == literals ? bytes : FromColumns(bytes);
}

void Append(Bytes& bytes, BytesView more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

}  // namespace

std::vector<std::uint8_t> Crunch(BytesView bytes, int level) {
  const Effort effort = EffortOf(level);
  if (bytes.size() > kMostBytesToCrunch) {
    throw std::runtime_error("there are " + std::to_string(bytes.size()) + " bytes to pack, the most are " +
                             std::to_string(kMostBytesToCrunch));
  }
  const Layout layout = LayoutOf(bytes);
  BitWriter writer;
  writer.PutByte(layout);
  BytesView rest = bytes;
  Bytes tail;
  if (layout != kPlain) {
    const std::size_t start = layout == kPictureProgram ? kLoadAddress : 0;
    const BytesView picture = bytes.subspan(start);
    WriteBest(AttemptsForBitmap(picture.first(kBitmap)), effort, writer);
    WriteBest(AttemptsFor(picture.subspan(kBitmap, kCells), {Literals::kColours, Literals::kRaw}), effort, writer);
    WriteBest(AttemptsFor(picture.subspan(kBitmap + kCells, kCells),
                          {Literals::kNibbles, Literals::kColours, Literals::kRaw}),
              effort, writer);
    Append(tail, bytes.first(start));
    Append(tail, picture.subspan(kBitmap + 2 * kCells));
    rest = tail;
  }
  WriteBest(AttemptsFor(rest, {Literals::kRaw, Literals::kPixels, Literals::kColours}), effort, writer);
  return writer.Bytes();
}

std::vector<std::uint8_t> Decrunch(BytesView packed) {
  BitReader reader(packed);
  const int layout = reader.GetByte();
  if (layout > kPictureProgram) throw std::runtime_error("this is no packed data");
  Bytes picture;
  for (int section = 0; section < 3 && layout != kPlain; ++section) {
    Append(picture, ReadNextSection(kMostBytesToCrunch - picture.size(), reader));
  }
  const Bytes rest = ReadNextSection(kMostBytesToCrunch - picture.size(), reader);
  if (!reader.AtEnd()) throw std::runtime_error("the packed data is damaged: bytes stand behind its end");
  const std::size_t start = layout == kPictureProgram ? std::min(kLoadAddress, rest.size()) : 0;
  Bytes bytes(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(start));
  Append(bytes, picture);
  Append(bytes, BytesView(rest).subspan(start));
  return bytes;
}

}  // namespace kelvo::c64out
