// Numbers and texts one after the other in bytes, as steps keep them in memory and on the disk.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "app/bytes.h"

namespace kelvo::history {

// Bytes that are no steps, or only a part of some.
class DamagedSteps : public std::runtime_error {
 public:
  DamagedSteps() : std::runtime_error("the steps are damaged") {}
};

// Small numbers take one byte, larger ones up to five.
void PutNumber(app::Bytes& bytes, std::uint32_t number);
void PutBytes(app::Bytes& bytes, std::span<const std::uint8_t> content);  // behind their number
void PutText(app::Bytes& bytes, std::string_view text);

// Takes them in the same order. Throws DamagedSteps instead of reading past the end.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

  bool IsAtEnd() const { return rest_.empty(); }
  std::size_t Left() const { return rest_.size(); }
  std::uint32_t Number();
  std::span<const std::uint8_t> Take(std::size_t count);
  std::span<const std::uint8_t> Bytes() { return Take(Number()); }
  std::string Text();

 private:
  std::span<const std::uint8_t> rest_;
};

}  // namespace kelvo::history
