#include "images/lzw.h"

#include <array>
#include <utility>
#include <vector>

namespace kelvo::images {
namespace {

constexpr int kColours = 1 << kPixelBits, kClear = kColours, kEnd = kColours + 1, kFirstFree = kColours + 2;
constexpr int kMostCodeBits = 12, kMostCodes = 1 << kMostCodeBits;

class Codes {
 public:
  void Put(int code, int bits) {
    waiting_ |= static_cast<std::uint32_t>(code) << waiting_bits_;
    for (waiting_bits_ += bits; waiting_bits_ >= 8; waiting_bits_ -= 8, waiting_ >>= 8) PutByte();
  }
  app::Bytes Finished() {
    if (waiting_bits_ > 0) PutByte();
    return std::move(bytes_);
  }

 private:
  void PutByte() { bytes_.push_back(static_cast<std::uint8_t>(waiting_)); }

  app::Bytes bytes_;
  std::uint32_t waiting_ = 0;
  int waiting_bits_ = 0;
};

// Rows of pixels that have a code: each is another and a pixel behind it.
class Dictionary {
 public:
  int CodeBits() const { return bits_; }
  // The code of the row `code` with `pixel` behind it; 0 when it has none.
  int Longer(int code, std::uint8_t pixel) const { return longer_[static_cast<std::size_t>(code)][pixel]; }
  // Gives it the next code. False when all are given.
  bool Add(int code, std::uint8_t pixel) {
    if (next_ == kMostCodes) return false;
    if (next_ == 1 << bits_) ++bits_;
    longer_[static_cast<std::size_t>(code)][pixel] = next_++;
    return true;
  }

 private:
  std::vector<std::array<int, kColours>> longer_ = std::vector<std::array<int, kColours>>(kMostCodes);
  int next_ = kFirstFree, bits_ = kPixelBits + 1;
};

}  // namespace

app::Bytes LzwPacked(std::span<const std::uint8_t> pixels) {
  Codes codes;
  Dictionary dictionary;
  codes.Put(kClear, dictionary.CodeBits());
  int code = pixels.front();
  for (const std::uint8_t pixel : pixels.subspan(1)) {
    if (const int longer = dictionary.Longer(code, pixel); longer != 0) {
      code = longer;
      continue;
    }
    codes.Put(code, dictionary.CodeBits());
    if (!dictionary.Add(code, pixel)) {
      codes.Put(kClear, dictionary.CodeBits());
      dictionary = {};
    }
    code = pixel;
  }
  codes.Put(code, dictionary.CodeBits());
  dictionary.Add(code, 0);  // a reader counts on, and with it the bits
  codes.Put(kEnd, dictionary.CodeBits());
  return codes.Finished();
}

}  // namespace kelvo::images
