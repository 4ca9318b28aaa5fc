#include "support/animation_decoder.h"

#include <optional>
#include <stdexcept>

namespace kelvo::support {
namespace {

using namespace c64anim;

void Require(bool is_sound) {
  if (!is_sound) throw std::runtime_error("this is no animation");
}

class Memory {
 public:
  explicit Memory(const Bytes& file) : file_(file) {}

  int At(int address) const {
    const int at = (address >= kHigh ? address - kHigh + kBitmap : address) - kAnimationStart;
    Require((address < kScreen || address >= kBehindBitmap) && (address < kAnimationEnd || address >= kHigh) &&
            at >= 0 && at < std::ssize(file_));
    return file_[static_cast<std::size_t>(at)];
  }
  int Word(int address) const { return At(address) | At(address + 1) << 8; }

 private:
  const Bytes& file_;
};

// Unpacks the part at `address`, which then is behind it.
Bytes Unpacked(const Memory& memory, int& address) {
  Bytes part;
  for (int run = memory.At(address++); run != 0; run = memory.At(address++)) {
    if (run >= kFarCopy) {
      const int from = memory.Word(address);
      for (int i = 0; i < run - kFarCopy + kShortestFar; ++i) {
        part.push_back(static_cast<std::uint8_t>(memory.At(from + i)));
      }
      address += 2;
    } else if (run >= kNearCopy) {
      const int distance = memory.At(address++);
      Require(distance > 0 && distance <= std::ssize(part));
      for (int i = 0; i < run - kNearCopy + kShortestNear; ++i) {
        part.push_back(part[part.size() - static_cast<std::size_t>(distance)]);
      }
    } else {
      for (int i = 0; i < run; ++i) part.push_back(static_cast<std::uint8_t>(memory.At(address++)));
    }
  }
  Require(part.size() <= kBufferSize);
  return part;
}

// The changes at an address, byte by byte, wherever they go on.
class Changes {
 public:
  Changes(const Memory& memory, int address) : memory_(memory), address_(address) {}

  // The number of the next span; empty at the end.
  std::optional<int> NextSpan() {
    for (int moves = 0; moves < 0x10000; ++moves) {
      const int number = Next();
      if (number == kElsewhere) {
        address_ = memory_.Word(address_);
      } else if (number == kPackedPart) {
        Require(!is_unpacked_);
        part_ = Unpacked(memory_, address_);
        is_unpacked_ = true;
        at_ = 0;
      } else if (number != kEndOfChanges) {
        return number;
      } else if (!is_unpacked_) {
        return std::nullopt;
      } else {
        is_unpacked_ = false;
      }
    }
    throw std::runtime_error("changes without an end");
  }
  int Next() {
    if (!is_unpacked_) return memory_.At(address_++);
    Require(at_ < part_.size());
    return part_[at_++];
  }

 private:
  const Memory& memory_;
  int address_;
  Bytes part_;
  bool is_unpacked_ = false;
  std::size_t at_ = 0;
};

void Flip(std::uint8_t& byte, int difference) {
  byte = static_cast<std::uint8_t>(byte ^ difference);
}

void ChangeSpan(int number, bool are_few, Changes& changes, FrameBytes& frame) {
  Require(number < kSpans);
  const int row = number / kSpansInRow, page = row * kRowCells / kPageCells + number % kSpansInRow;
  int flags = 0;
  do {
    flags = changes.Next();
    const int cell = page * kPageCells + (flags >> kPlaceShift) % kPageCells;
    Require(cell / kRowCells == row);
    CellBytes& changed = frame.cells.at(static_cast<std::size_t>(cell));
    const int lines = are_few ? changes.Next() : 0xFF;
    for (int line = 0; line < 8; ++line) {
      if ((lines & 0x80 >> line) != 0) Flip(changed.lines[static_cast<std::size_t>(line)], changes.Next());
    }
    if ((flags & kColoursFollow) == 0) continue;
    Flip(changed.screen, changes.Next());
    Flip(changed.colour, changes.Next());
  } while ((flags & kLastOfSpan) == 0);
}

void Change(const Memory& memory, int address, FrameBytes& frame) {
  Changes changes(memory, address);
  while (const auto number = changes.NextSpan()) {
    if (number == kBackgroundSpan) {
      Flip(frame.background, changes.Next());
    } else {
      ChangeSpan(*number & ~kFewLines, (*number & kFewLines) != 0, changes, frame);
    }
  }
}

}  // namespace

std::vector<DecodedTurn> DecodedAnimation(const Bytes& file, std::size_t turns) {
  const Memory memory(file);
  std::vector<DecodedTurn> decoded(1);
  Change(memory, memory.Word(kAnimationStart + 1), decoded.back().frame);
  for (int step = kAnimationStart + kStepBytes; decoded.size() <= turns; step += kStepBytes) {
    const int fields = memory.At(step), address = memory.Word(step + 1);
    if (fields == 0 && address < 0x100) return decoded;
    if (fields == 0) {
      step = address - kStepBytes;
      continue;
    }
    Require(fields <= kMostFields);
    decoded.back().fields += fields;
    FrameBytes frame = decoded.back().frame;
    Change(memory, address, frame);
    if (frame != decoded.back().frame) decoded.push_back({frame, 0});
  }
  decoded.pop_back();
  return decoded;
}

}  // namespace kelvo::support
