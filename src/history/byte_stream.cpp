#include "history/byte_stream.h"

namespace kelvo::history {
namespace {

constexpr std::uint32_t kLow = 0x7F, kMore = 0x80;
constexpr unsigned kBits = 7, kMostBits = 32;

}  // namespace

void PutNumber(app::Bytes& bytes, std::uint32_t number) {
  for (; number > kLow; number >>= kBits) bytes.push_back(static_cast<std::uint8_t>(number | kMore));
  bytes.push_back(static_cast<std::uint8_t>(number));
}

void PutBytes(app::Bytes& bytes, std::span<const std::uint8_t> content) {
  PutNumber(bytes, static_cast<std::uint32_t>(content.size()));
  bytes.insert(bytes.end(), content.begin(), content.end());
}

void PutText(app::Bytes& bytes, std::string_view text) {
  PutNumber(bytes, static_cast<std::uint32_t>(text.size()));
  bytes.insert(bytes.end(), text.begin(), text.end());
}

std::uint32_t ByteReader::Number() {
  std::uint32_t number = 0;
  for (unsigned shift = 0; shift < kMostBits; shift += kBits) {
    const std::uint8_t byte = Take(1).front();
    number |= (byte & kLow) << shift;
    if ((byte & kMore) == 0) return number;
  }
  throw DamagedSteps();
}

std::span<const std::uint8_t> ByteReader::Take(std::size_t count) {
  if (count > rest_.size()) throw DamagedSteps();
  const auto taken = rest_.first(count);
  rest_ = rest_.subspan(count);
  return taken;
}

std::string ByteReader::Text() {
  const auto bytes = Bytes();
  return {bytes.begin(), bytes.end()};
}

}  // namespace kelvo::history
