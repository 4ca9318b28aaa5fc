// One section of packed data: runs of literals and copies of what is already there, told by adaptive nibbles.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "c64out/crunch_model.h"
#include "c64out/crunch_stream.h"

namespace kelvo::c64out {

// How a section's literal bytes are told.
enum class Literals {
  kPixels,   // two nibbles, each in the context of the one at its place in the byte before
  kColours,  // the high nibble in the context of the high one before, the low one in that of the high one
  kNibbles,  // the low nibble in the context 0; all high nibbles are 0 and are not told
  kRaw,      // a whole byte of the stream
};

// `length` (1..kMostLength) bytes: literals where `offset` is 0, else copied from `offset` bytes before.
struct Token {
  int length = 0, offset = 0;
};

inline constexpr int kMostLength = 255, kLeastNewCopy = 2, kMostOffset = 1 << 14;

// Lengths come in eight classes, each with its extra bits.
struct LengthClass {
  int first, extra_bits;
};
inline constexpr LengthClass kLengthClasses[] = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 1}, {7, 2}, {11, 4}, {27, 8}};
int LengthClassOf(int length);

// An offset's class is the number of binary digits of `offset` - 1; the digits behind the first are extra bits.
inline constexpr int kEndOfSection = 15;
int OffsetClassOf(int offset);
constexpr int OffsetExtraBits(int offset_class) {
  return offset_class > 1 ? offset_class - 1 : 0;
}
// The context of the offset of a new copy of `length` bytes.
int OffsetContext(int length);

// A token begins with a nibble: its length class, plus kNewCopy for a copy from a new offset. Without kNewCopy it is,
// behind a copy and at the start, a run of literals, and behind literals a copy from the offset of the copy before.
// Literals of the longest class count as a copy here, so that more literals can follow. The length of a new copy is
// told less 1.
inline constexpr int kNewCopy = 8, kLongestClass = 7;
constexpr int ContextBehindLiterals(int length_class) {
  return length_class == kLongestClass ? NibbleModel::kAfterCopy : NibbleModel::kAfterLiterals;
}

struct LiteralContexts {
  int high, low;
};
// The contexts of the nibbles of the literal `byte` behind the byte `before`. Not for kRaw.
LiteralContexts ContextsOf(Literals literals, int byte, int before);

// Writes tokens that make up `bytes` from their start.
class SectionWriter {
 public:
  SectionWriter(std::span<const std::uint8_t> bytes, Literals literals, BitWriter& writer)
      : bytes_(bytes), literals_(literals), writer_(writer) {}

  void Put(Token token);
  void End();
  const NibbleModel& Model() const { return model_; }

 private:
  void PutNibble(int context, int nibble);
  void PutLength(int kind, int length);
  void PutOffset(int length, int offset);
  void PutLiteral(int byte, int before);

  std::span<const std::uint8_t> bytes_;
  Literals literals_;
  BitWriter& writer_;
  NibbleModel model_;
  std::size_t at_ = 0;
  int context_ = NibbleModel::kAfterCopy, offset_ = 1;
};

// Reads a section of at most `most` bytes. Throws std::runtime_error for damaged data.
std::vector<std::uint8_t> ReadSection(Literals literals, std::size_t most, BitReader& reader);

}  // namespace kelvo::c64out
