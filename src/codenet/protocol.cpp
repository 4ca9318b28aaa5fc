#include "codenet/protocol.h"

namespace kelvo::codenet {
namespace {

constexpr std::uint8_t kMagicHigh = 0xCA, kMagicLow = 0x1F;
constexpr std::size_t kHeaderSize = 4;

void AppendWord(app::Bytes& packet, std::size_t word) {
  packet.push_back(static_cast<std::uint8_t>(word >> 8));
  packet.push_back(static_cast<std::uint8_t>(word));
}

}  // namespace

app::Bytes EncodePlain(std::uint8_t sequence, Service service) {
  return {kMagicHigh, kMagicLow, sequence, static_cast<std::uint8_t>(service)};
}

app::Bytes EncodeData(std::uint8_t sequence, std::uint16_t address, std::span<const std::uint8_t> data) {
  app::Bytes packet = EncodePlain(sequence, Service::kData);
  AppendWord(packet, address);
  AppendWord(packet, data.size());
  packet.insert(packet.end(), data.begin(), data.end());
  if (packet.size() % 2 != 0) packet.push_back(0);
  return packet;
}

app::Bytes EncodeJump(std::uint8_t sequence, std::uint16_t address) {
  app::Bytes packet = EncodePlain(sequence, Service::kJump);
  AppendWord(packet, address);
  return packet;
}

std::optional<Answer> DecodeAnswer(std::span<const std::uint8_t> packet) {
  if (packet.size() < kHeaderSize || packet[0] != kMagicHigh || packet[1] != kMagicLow) return std::nullopt;
  if (packet[3] > static_cast<std::uint8_t>(Service::kAnswer)) return std::nullopt;
  return Answer{packet[2], packet[3] == static_cast<std::uint8_t>(Service::kAnswer)};
}

}  // namespace kelvo::codenet
