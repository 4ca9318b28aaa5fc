// The packets of Codenet, by which a C64 on the local network lets its memory be written and its programs be started.
//
// Each packet is one UDP datagram, to port 6462 of the C64 unless it is told otherwise:
//
//   offset  size  what
//   0       2     $CA $1F
//   2       1     sequence number, counted up by the sender
//   3       1     service
//   4       2     address, high byte first      data, jump
//   6       2     number of bytes, high first   data
//   8       n     the bytes, at most 128        data
//
// and one 0 more where the length would be odd. The C64 answers each packet with its sequence number and service 1.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "app/bytes.h"

namespace kelvo::codenet {

inline constexpr int kPort = 6462;
inline constexpr std::size_t kMostData = 128;        // bytes of memory in one packet
inline constexpr std::size_t kMemorySize = 0x10000;  // of a C64

enum class Service : std::uint8_t { kPing = 0, kAnswer = 1, kData = 4, kJump = 6, kRun = 7 };

// A packet without any parameters: a ping, or the order to run the BASIC program in memory.
app::Bytes EncodePlain(std::uint8_t sequence, Service service);

// Writes `data` (1..kMostData bytes) from `address` on.
app::Bytes EncodeData(std::uint8_t sequence, std::uint16_t address, std::span<const std::uint8_t> data);

app::Bytes EncodeJump(std::uint8_t sequence, std::uint16_t address);

struct Answer {
  std::uint8_t sequence;  // of the packet that it answers
  bool accepted;          // false: the C64 refuses that packet
};

// Empty for anything that is no answer: too short, of another protocol, or with a service that is no answer's.
std::optional<Answer> DecodeAnswer(std::span<const std::uint8_t> packet);

}  // namespace kelvo::codenet
