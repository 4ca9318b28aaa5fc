// Transfers to a C64 by Codenet, over a network that may lose, delay, double and reorder packets.
//
// One packet is in flight at a time. It counts as done only with an answer of its own sequence number; everything else
// that arrives is passed over. A packet without an answer is sent again under the same number, each time with a longer
// wait. Damage within a packet is for UDP's checksum to find: a damaged packet is a lost one.
//
// Sequence numbers have eight bits only, so a late answer could be taken for one to a newer packet, and a late copy of
// a packet could overwrite what was written after it. Against both, nothing is trusted to be gone before a packet's
// life in the network (Patience::packet_life) is over: a number is not used again sooner, and a write that had to be
// repeated ends with a wait for the copies that nobody answered.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

#include "app/long_work.h"
#include "codenet/datagram_socket.h"
#include "codenet/protocol.h"

namespace kelvo::codenet {

// A transfer that did not come to its end. The message says what is known about the C64's memory and program.
class TransferError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Patience {
  std::chrono::microseconds first_wait = std::chrono::milliseconds(250);   // for an answer; doubled with each try
  int tries = 5;                                                           // of one packet
  std::chrono::microseconds packet_life = std::chrono::milliseconds(500);  // from sending to the answer's arrival
};

// Each call returns only when the C64 has confirmed all of it. Throws TransferError, also when a stop is wanted; a
// start also throws what the socket throws.
class Sender {
 public:
  // `first_sequence` is best a random one, so that answers to an earlier transfer fit no packet of this one.
  Sender(DatagramSocket& socket, const TransferWatch& watch, std::uint8_t first_sequence,
         const Patience& patience = {});

  // `bytes` must end at $FFFF or before; else nothing is sent. The progress counts bytes. An error tells how many of
  // them are confirmed.
  void WriteMemory(std::uint16_t address, std::span<const std::uint8_t> bytes, app::Progress& progress);

  // Leaves the C64's Codenet for the program at `address`, or for BASIC's RUN. A program must not start twice, and a
  // C64 that runs one cannot answer: so the order is repeated only after a ping has shown that the C64 still listens.
  // With no answer to either, the error says that the program may be running.
  void Jump(std::uint16_t address);
  void Run();

 private:
  using Time = TransferWatch::Time;

  enum class Reply { kNone, kAccepted, kRefused };

  // What is known of a sequence number since it was last given out.
  struct Number {
    Time last_sent;
    Reply reply = Reply::kNone;
  };

  // A packet on its way that nobody has answered yet.
  struct Copy {
    std::uint8_t sequence;
    Time sent;
  };

  void WriteData(std::uint16_t address, std::span<const std::uint8_t> data);
  std::uint8_t NextSequence();
  Reply Confirm(std::uint8_t sequence, std::span<const std::uint8_t> packet);
  void Start(std::uint8_t sequence, std::span<const std::uint8_t> packet);
  bool StillListens();
  Reply Try(std::uint8_t sequence, std::span<const std::uint8_t> packet, std::chrono::microseconds wait);
  void Settle();

  // Takes what has arrived already, or the next datagram until `end`.
  void TakeWaiting();
  void TakeNext(Time end);
  void Take(std::span<const std::uint8_t> datagram);

  bool LivesOn(Time sent) const { return watch_.Now() < sent + patience_.packet_life; }
  void CheckStop() const;

  DatagramSocket& socket_;
  const TransferWatch& watch_;
  Patience patience_;
  std::uint8_t next_;
  std::array<Number, 256> numbers_{};
  std::vector<Copy> unanswered_;
};

}  // namespace kelvo::codenet
