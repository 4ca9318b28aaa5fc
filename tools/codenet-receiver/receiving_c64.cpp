#include "receiving_c64.h"

#include <algorithm>

#include "app/number_text.h"
#include "codenet/protocol.h"

namespace kelvo::codenet {
namespace {

using Packet = ReceivingC64::Packet;

int WordAt(Packet packet, std::size_t offset) {
  return packet[offset] << 8 | packet[offset + 1];
}

std::string Hex(int address) {
  return "$" + app::ToHex(address, 4);
}

}  // namespace

app::Bytes ReceivingC64::Handle(Packet packet) {
  const bool whole = packet.size() >= 4 && packet.size() % 2 == 0 && packet[0] == 0xCA && packet[1] == 0x1F;
  if (!whole || !Perform(packet)) return {};
  ++packets;
  return {0xCA, 0x1F, packet[2], 1};
}

bool ReceivingC64::Perform(Packet packet) {
  const auto service = static_cast<Service>(packet[3]);
  if (service == Service::kData) return Write(packet);
  if (service == Service::kRun) ++runs;
  if (service != Service::kJump) return service == Service::kPing || service == Service::kRun;
  if (packet.size() < 6) return false;
  jumps.push_back(WordAt(packet, 4));
  return true;
}

bool ReceivingC64::Write(Packet packet) {
  if (packet.size() < 8) return false;
  const int address = WordAt(packet, 4), size = WordAt(packet, 6);
  if (size > 128 || static_cast<int>(packet.size()) < 8 + size || address + size > 0x10000) return false;
  std::copy_n(packet.begin() + 8, size, memory.begin() + address);
  return true;
}

std::string Told(Packet packet) {
  switch (static_cast<Service>(packet[3])) {
    case Service::kData:
      return "write " + Hex(WordAt(packet, 4)) + "-" + Hex(WordAt(packet, 4) + WordAt(packet, 6) - 1);
    case Service::kJump:
      return "jump to " + Hex(WordAt(packet, 4));
    case Service::kRun:
      return "run";
    default:
      return "ping";
  }
}

}  // namespace kelvo::codenet
