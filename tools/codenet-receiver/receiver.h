// A receiving C64 behind UDP on this machine (127.0.0.1 alone), with a network in front of it that may be a bad one.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>

#include "receiving_c64.h"
#include "sockets.h"

namespace kelvo::codenet {

// The network in front of it, and its pace.
struct Network {
  static constexpr int kNever = std::numeric_limits<int>::max();

  std::chrono::microseconds answers_after{0};  // what the machine takes for a packet
  int vanishes_after = kNever;                 // packets, of which the receiver then hears no more
  int loses_every = kNever;                    // so many packets, one does not arrive
};

class Receiver {
 public:
  // Gives the answer to a packet that has arrived; empty for none.
  using Handle = std::function<app::Bytes(ReceivingC64::Packet)>;

  // At `port`, or at a free one for 0. Throws std::runtime_error where that is taken.
  explicit Receiver(const Network& network = {}, std::uint16_t port = 0);
  ~Receiver();
  Receiver(const Receiver&) = delete;
  Receiver& operator=(const Receiver&) = delete;

  std::uint16_t Port() const { return port_; }

  // Waits a moment for a packet; one that arrives is handed to `handle` and answered.
  void Serve(const Handle& handle);

 private:
  bool IsLost() { return arrived_++ >= network_.vanishes_after || arrived_ % network_.loses_every == 0; }

  NetworkUse network_use_;
  Network network_;
  SocketHandle socket_ = kNoSocket;
  std::uint16_t port_ = 0;
  int arrived_ = 0;
};

}  // namespace kelvo::codenet
